// The commands of the main window and of the windows that it opens: one table of what is run, and
// of what must hold whichever of its operations fails.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/editor/editor_fixture.h"
#include "tests/hardship/answering.h"
#include "tests/hardship/holds.h"

namespace vistrel::test {

/// Where a command is given: in the main window, or in the Logo browser over it.
struct Stage {
    main_window::Principale& main;
    editor::SelPictureForm* editor = nullptr;
};

class WindowCommands : public LogoBrowser {
 protected:
    struct Row {
        std::vector<int> commands;  ///< the numbers that give it; none for what is no command
        const char* name;
        void (*prepare)(Stage&) = nullptr;  ///< with the library put back
        void (*run)(Stage&) = nullptr;      ///< null for one of another table, by its name
        Exceptions exceptions = {};
        void (*inWindow)(HWND window) = nullptr;  ///< what is done in the window that it opens
        /// It starts another program: that is left out, and every start of it fails.
        bool startsOther = false;
        bool hasOperations = true;
    };

    static const std::vector<Row>& OfMainWindow();
    static const std::vector<Row>& OfLogoBrowser();
};

}  // namespace vistrel::test
