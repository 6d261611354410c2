// The main window on a small machine, with a user in front of it.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "controls/message_loop.h"
#include "main_window/principale.h"
#include "resources/ids.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

/// The bytes of a screen file of 320 x 400 pixels in one colour; from `firstAnimated` on, where
/// that is not 0, its colours move.
std::string ScreenFile(unsigned char red, unsigned char green, unsigned char blue,
                       int firstAnimated = 0);

/// A screen of 6000 x 6000 pixels, which takes its time to be read.
std::string LargeScreenFile();

/// A colour that a picture box shows, in its middle.
COLORREF MiddleOf(const controls::PictureBox& box);

inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kGreenScreen = RGB(0, 255, 0);
inline constexpr COLORREF kBlueScreen = RGB(0, 0, 255);

/// Whether an empty picture box says just this, in small grey letters in its middle.
bool Says(const controls::PictureBox& box, const std::string& text);

/// A library with the sets "Blue", "Green.SLS" and "Red": each shows its colour as startup screen;
/// the multi-logo sets have the other two too, the shared ones are white.
class MainWindow98 : public Machine {
 protected:
    MainWindow98();

    /// A set of three screens of one colour.
    void PutSet(const std::string& name, unsigned char red, unsigned char green,
                unsigned char blue);
    void PutSingleSet(const std::string& name, unsigned char red, unsigned char green,
                      unsigned char blue);

    /// Opens the main window, lets `user` act in it on a thread of its own, and closes it. This
    /// thread handles the messages meanwhile, as the program does.
    void WithMainWindow(const std::function<void(main_window::Principale& main)>& user);

    /// For the user's thread: waits until the window has done what it was doing. What a handler
    /// does last is seen for sure only then.
    static void Settle(main_window::Principale& main) { user::LetFinish(main.handle()); }
    /// For the user's thread: selects a set by a click on it.
    void ClickSet(main_window::Principale& main, const std::string& name);
    /// Clicks a set and, with a key held, another one: then so many are selected. Where the key was
    /// lost meanwhile, then once more.
    void ClickAlso(main_window::Principale& main, const std::string& first, WORD key,
                   const std::string& second, int count);
    POINT PointOfSet(main_window::Principale& main, const std::string& name);
    /// For the user's thread: clicks below the last set, where nothing is.
    void ClickBelowSets(main_window::Principale& main);
    /// For the user's thread: clicks a set, begins to edit its name, and types; the edit stays
    /// open.
    void BeginRenaming(main_window::Principale& main, const std::string& name,
                       const std::string& typed);
    /// The name of the selected set; empty when none is.
    static std::string Selected(main_window::Principale& main);
    /// Whether the list holds just these sets, in this order, soon.
    static bool Lists(main_window::Principale& main, const Names& expected);
    static Names Listed(main_window::Principale& main);
    /// Whether the list's commands on a set are enabled, as their real buttons say; all or none.
    static bool SetToolsEnabled(main_window::Principale& main);
    /// Chooses a command as the toolbar, a menu or a key would send it, and waits until it is done.
    void Command(main_window::Principale& main, int id);
    /// The same, and looks at the pointer all the time: whether it was the hourglass.
    bool SeesTheHourglass(main_window::Principale& main, int id);
    /// The same for a command that opens something that waits for an answer: does not wait.
    void StartCommand(main_window::Principale& main, int id);
};

}  // namespace vistrel::test
