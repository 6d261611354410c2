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

/// MainWindow98's library with pictures beside it, and the commands that are given there.
class WindowCommands : public LogoBrowser {
 protected:
    enum class Table { MainWindow, LogoBrowser };

    WindowCommands();

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
    static const std::vector<Row>& Rows(Table table) {
        return table == Table::MainWindow ? OfMainWindow() : OfLogoBrowser();
    }

    /// Opens what a table's commands are given in, and lets `user` act there.
    void OnStage(Table table, const std::function<void(Stage& stage)>& user);
    /// Puts library, pictures and installed screens back, and "Red" is selected.
    void PutBack(Stage& stage);
    /// Runs a row on a library that is put back, after `fail` has said which operations fail. How
    /// many there were of those that are counted then.
    int RunRow(const Row& row, Stage& stage, const std::function<void()>& fail);

    const Place place_;
    Holding before_;      ///< what each row begins with
    Holding start_;       ///< and what it has prepared
    int filesGiven_ = 0;  ///< to the system's dialogs, by all rows so far

 private:
    Files pictures_;
};

}  // namespace vistrel::test
