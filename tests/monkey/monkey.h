// A user who does anything that comes to mind, in front of the real program, and remembers what the
// sets must be afterwards.
#pragma once

#include <random>
#include <span>
#include <string>
#include <vector>

#include "resources/ids.h"
#include "tests/monkey/library.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {

class Monkey : public RunningProgram {
 protected:
    /// Does one thing after the other until so many are done or the time is over, whichever comes
    /// first. At the first thing that is wrong it stops and says what it did last. The same seed
    /// chooses the same as long as the program is as quick.
    void Act(unsigned seed, int steps, DWORD milliseconds);

 private:
    /// One thing to do, and how often beside the others.
    struct Deed {
        const char* name;
        int weight;
        Permits (Monkey::*act)();
    };

    // Choosing.
    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Below(count) == 0; }
    template <typename T, std::size_t n>
    const T& OneOf(const T (&choices)[n]) {
        return choices[Below(static_cast<int>(n))];
    }
    std::string AnyName();
    POINT AnyPointIn(HWND window);
    std::span<const Deed> WhatCouldBeDone();

    // The windows of the program.
    HWND MainWindow() const { return user::FindTop("Principale", "", process); }
    HWND List() const { return user::Control(MainWindow(), ID_MyList); }
    /// What stands over the main window; null when nothing does.
    HWND OtherWindow() const;
    bool MenuIsOpen() const { return user::FindTop("#32768", "", process) != nullptr; }
    bool NothingIsGoingOn() const;
    int SelectedSets() const;

    // One step.
    void Step();
    /// Waits until the program has done what it was told to. False when it does not answer.
    bool Settle();
    /// Whether it runs; starts it again when it was ended as a user ends it.
    bool IsRunning();
    void StartAnew();
    /// Stores anything for some settings.
    void SpoilSettings();
    void Judge();
    void CloseOtherPrograms() const;
    void Fail(const std::string& what);
    /// Takes what is there now for what must be there.
    void TakeAsGiven();

    // At the main window.
    Permits ClickList();
    Permits DoubleClickList();
    Permits PressKey();
    Permits Rename();
    Permits Delete();
    Permits PressTool();
    Permits OpenMenu();
    Permits OpenPopUp();
    Permits DragFromList();
    Permits TurnWheel();
    Permits Find();
    Permits Undo();
    Permits Resize();
    Permits Close();
    Permits Kill();
    Permits CompareListWithDisk();
    // At an open menu.
    Permits ChooseFromMenu();
    Permits LeaveMenu();
    // At other windows.
    Permits AnswerDialog();
    Permits ClickControl();
    Permits PressKeyThere();
    Permits DragThere();
    Permits TypeName();
    Permits CloseWindow();
    // At no window of this program.
    Permits ChangeDisplay();
    Permits RenameSetOutside();
    Permits DeleteSetOutside();
    Permits CopySetOutside();
    Permits DamageScreenOutside();
    Permits ProtectScreen();
    Permits HoldScreenOpen();

    static std::span<const Deed> AtMainWindow();
    static std::span<const Deed> AtMenu();
    static std::span<const Deed> AtDialog();
    static std::span<const Deed> AtOtherWindow();

    /// What one command on the selected sets may do.
    Permits AnyCommand() const;
    /// What keys may do that went into the name of a set if that is being edited, as a click on the
    /// selected set may have it.
    Permits Typed(Permits permits) const;
    /// The Logo browser shows a folder that is not the monkey's to play with.
    bool StandsInAForeignFolder(HWND window) const;
    /// The preferences name another folder of sets.
    bool NamesAForeignFolder(HWND window) const;
    std::string AnySet();
    std::string AnyScreen();
    static Files InstalledFiles();

    std::mt19937 random_;
    std::vector<std::string> log_;
    Library library_;
    Files installed_;
    Library everInstalled_;
    std::vector<Permits> asked_;  ///< by each thing since nothing was going on, and some before
    HANDLE held_ = INVALID_HANDLE_VALUE;
    bool protected_ = false;  ///< some screens are read-only or hidden
    bool failed_ = false;
};

}  // namespace vistrel::test
