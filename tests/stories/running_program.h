// The real program on this prefix's own Windows, started and used from outside.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>
// The shell's headers need windows.h first.
#include <shellapi.h>
#include <shlobj.h>

#include <optional>
#include <string>

#include "tests/stories/installed_program.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/started_program.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

/// A fresh machine: three installed screens, a boot configuration file that is hidden, system and
/// read-only, the sample sets in C:\Logos, and settings that name them.
class RunningProgram : public testing::Test {
 protected:
    RunningProgram();
    ~RunningProgram() override;

    /// Starts the program and waits for its main window; null if none came.
    HWND Start();
    /// Closes the program as its close button does and waits until it has ended.
    void Close();
    /// Its exit status once it has ended by itself; nothing when it does not.
    std::optional<unsigned long> WaitForEnd();
    /// Ends the program as the system does at the end of a session.
    void EndAtOnce();
    /// Selects the set at this place of the list (0 is the first) by the keyboard.
    void SelectSet(HWND main, int place);
    std::string LabelOf(HWND main, int id) { return user::TextOf(user::Control(main, id)); }
    /// Presses the button at this place of the toolbar; gaps between groups count 8 pixels.
    void PressToolbarButton(HWND main, int place, int gaps);
    /// Opens the menu "Logo" and chooses the command with this letter.
    void ChooseFromLogoMenu(char letter);
    /// Types a path into the system's dialog of this title, and Enter.
    void AnswerDialog(const std::string& title, const std::string& path);

    const std::string logos = "C:\\Logos\\";
    DWORD process = 0;

 private:
    StartedProgram running_;
};

}  // namespace vistrel::test
