// The Logo browser over the main window on a small machine, with a user in front of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editor/select_picture_form.h"
#include "pictures/rgb_picture.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

/// A picture in bands of different colours.
pictures::RgbPicture TestPicture(int width, int height);
std::string JpgOf(const pictures::RgbPicture& picture);
std::string GifOf(const pictures::RgbPicture& picture);
/// A bitmap of 24 bits per pixel.
std::string BmpOf(const pictures::RgbPicture& picture);

/// MainWindow98's library, and a folder of pictures that the browser shows first.
class LogoBrowser : public MainWindow98 {
 protected:
    LogoBrowser();

    using Acting =
        std::function<void(main_window::Principale& main, editor::SelPictureForm& editor)>;

    /// Opens the editor over the main window and lets `user` act in it on a thread of its own; then
    /// closes it, discarding changes.
    void WithEditor(const Acting& user) {
        WithEditor(user, [](main_window::Principale&) {});
    }
    /// The same, after something was done in the main window.
    void WithEditor(const Acting& user,
                    const std::function<void(main_window::Principale& main)>& before);

    // For the user's thread.

    /// Waits until the editor's thread has handled what was sent to it.
    static void Settle(editor::SelPictureForm& editor);
    /// Waits until `condition` comes true, which the test expects.
    static void Await(const std::function<bool()>& condition, const char* what);

    /// Where an item of the browser stands on the screen.
    static POINT PointOfItem(editor::SelPictureForm& editor, const std::string& name);
    /// Selects an item as the keyboard does.
    static void Pick(editor::SelPictureForm& editor, const std::string& name);
    /// Opens an item by a double click.
    static void Open(editor::SelPictureForm& editor, const std::string& name);
    /// Opens a folder by a double click and waits until it is listed.
    static void BrowseInto(editor::SelPictureForm& editor, const std::string& name);
    /// Types another name over an item's label and presses Enter. What follows is to be awaited.
    static void RenameItem(editor::SelPictureForm& editor, const std::string& name,
                           const std::string& typed);
    static std::vector<std::string> Listed(editor::SelPictureForm& editor);

    /// Chooses a set in the name's list, as the keyboard does.
    static void ChooseSet(editor::SelPictureForm& editor, const std::string& name);
    /// Types a name over the one that stands there.
    static void TypeName(editor::SelPictureForm& editor, const std::string& name);
    /// Presses a button or chooses an option and waits until that is done.
    static void Press(controls::Control& button);
    /// The same for one that asks something: answers it, and returns what was asked.
    static user::Box PressAndAnswer(controls::Control& button, int answer);
    /// Runs a menu command and waits until it is done.
    static void Run(editor::SelPictureForm& editor, int command);
    static user::Box RunAndAnswer(editor::SelPictureForm& editor, int command, int answer);

    static void DismissMenu();
    /// Opens the Action menu, closes it again and returns it, to be read as it was.
    static HMENU ActionMenu(editor::SelPictureForm& editor);
    /// Runs a command that deletes into the recycle bin and answers the shell's own question.
    static void RunAndAnswerShell(editor::SelPictureForm& editor, int command, int answer);

    /// The names of what lies in the recycle bin.
    static std::vector<std::string> InTheBin();

    /// Puts a picture of the browser into a slot.
    static void Fill(editor::SelPictureForm& editor, const std::string& name, int slot);

    const std::string pictures = root + "pictures\\";
};

}  // namespace vistrel::test
