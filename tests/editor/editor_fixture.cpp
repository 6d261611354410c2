#include "tests/editor/editor_fixture.h"

#include <commctrl.h>

#include "art/files/gif_writer.h"
#include "art/files/jpg_writer.h"
#include "tests/support/user/clean_start.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;
using namespace pictures;

namespace {

std::string TextOf(const std::vector<std::uint8_t>& bytes) {
    return std::string(bytes.begin(), bytes.end());
}

void Append(std::string& file, long number, int bytes) {
    for (int i = 0; i < bytes; ++i) file += static_cast<char>(number >> (8 * i) & 0xFF);
}

/// Where Wine keeps the recycle bin, if there is such a folder when it is used first.
std::string BinFolder() {
    char home[MAX_PATH] = "";
    GetEnvironmentVariableA("WINEHOMEDIR", home, sizeof home);
    // It begins with "\\??\\".
    return std::string(home).substr(4) + "\\.local\\share\\";
}

/// Closes the editor, with Yes to its question; whether that can be done.
bool ClosesByItself(HWND editor) {
    PostMessageA(editor, WM_CLOSE, 0, 0);
    WaitUntil([&] { return !IsWindow(editor) || user::FindTop("#32770") != nullptr; });
    if (IsWindow(editor)) user::AnswerBox(IDYES);
    return user::WaitUntilGone(editor);
}

}  // namespace

RgbPicture TestPicture(int width, int height) {
    RgbPicture picture{width, height, std::vector<std::uint8_t>(std::size_t(width) * height * 3)};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* pixel = &picture.pixels[(std::size_t(y) * width + x) * 3];
            // Four bands: red, green, blue and grey, brighter to the right.
            const auto light = static_cast<std::uint8_t>(55 + 200 * x / width);
            const int band = 4 * y / height;
            for (int i = 0; i < 3; ++i) pixel[i] = band == i || band == 3 ? light : 20;
        }
    }
    return picture;
}

std::string JpgOf(const RgbPicture& picture) { return TextOf(art::JpgFile(picture)); }

std::string GifOf(const RgbPicture& picture) { return TextOf(art::GifFile(picture)); }

std::string BmpOf(const RgbPicture& picture) {
    const int stride = (picture.width * 3 + 3) / 4 * 4;
    std::string file = "BM";
    Append(file, 54 + stride * picture.height, 4);
    Append(file, 0, 4);
    Append(file, 54, 4);
    Append(file, 40, 4);
    Append(file, picture.width, 4);
    Append(file, picture.height, 4);
    Append(file, 1, 2);
    Append(file, 24, 2);
    file.append(24, '\0');
    for (int y = picture.height - 1; y >= 0; --y) {
        const std::size_t row = file.size();
        for (int x = 0; x < picture.width; ++x)
            for (int i = 2; i >= 0; --i)
                file +=
                    static_cast<char>(picture.pixels[(std::size_t(y) * picture.width + x) * 3 + i]);
        file.resize(row + stride, '\0');
    }
    return file;
}

LogoBrowser::LogoBrowser() {
    MakeFolders(BinFolder());
    MakeFolders(pictures);
    Store("SearchLogoPath", TextValue(pictures));
    // Questions are asked by those tests that are about them.
    Store("ConfirmLogosetDelete", TextValue("2"));
}

void LogoBrowser::WithEditor(const Acting& user,
                             const std::function<void(Principale& main)>& before) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    main.Preferences().bootRoot = boot;
    main.Show();
    before(main);
    SelPictureForm editor(main);
    user::Meanwhile acting([&] {
        WaitUntil([&] { return editor.IsOpen() && IsWindowVisible(editor.handle()); });
        const HWND window = editor.handle();
        user::Activate(window);
        Settle(editor);
        user(main, editor);
        if (ClosesByItself(window)) return;
        ADD_FAILURE() << "the editor did not close";
        user::CloseWhatIsOver(window);
        if (ClosesByItself(window)) return;
        PostThreadMessageA(GetWindowThreadProcessId(window, nullptr), WM_QUIT, 1, 0);
    });
    editor.ShowModal(main.handle());
    acting.Finish();
    main.Unload();
}

void LogoBrowser::Settle(SelPictureForm& editor) { user::LetFinish(editor.handle()); }

POINT LogoBrowser::PointOfItem(SelPictureForm& editor, const std::string& name) {
    const int index = editor.LogoList.FindItem(name);
    editor.LogoList.EnsureVisible(index);
    RECT r{};
    r.left = LVIR_LABEL;
    SendMessageA(editor.LogoList.handle(), LVM_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&r));
    POINT at{r.left + 8, (r.top + r.bottom) / 2};
    ClientToScreen(editor.LogoList.handle(), &at);
    return at;
}

void LogoBrowser::Await(const std::function<bool()>& condition, const char* what) {
    EXPECT_TRUE(WaitUntil(condition)) << what;
}

void LogoBrowser::Pick(SelPictureForm& editor, const std::string& name) {
    LVITEMA item{};
    item.stateMask = LVIS_SELECTED;
    SendMessageA(editor.LogoList.handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1),
                 reinterpret_cast<LPARAM>(&item));
    item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
    const int index = editor.LogoList.FindItem(name);
    EXPECT_GE(index, 0) << name;
    SendMessageA(editor.LogoList.handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&item));
}

void LogoBrowser::Open(SelPictureForm& editor, const std::string& name) {
    user::DoubleClickAt(PointOfItem(editor, name));
}

void LogoBrowser::BrowseInto(SelPictureForm& editor, const std::string& name) {
    const std::string from = editor.CurPath.Text();
    Open(editor, name);
    Await([&] { return editor.CurPath.Text() != from; }, "folder opened");
    Settle(editor);
}

void LogoBrowser::RenameItem(SelPictureForm& editor, const std::string& name,
                             const std::string& typed) {
    Pick(editor, name);
    Run(editor, ID_BrowserRename);
    Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
    user::Type(typed);
    user::Press(VK_RETURN);
}

HMENU LogoBrowser::ActionMenu(SelPictureForm& editor) {
    PostMessageA(editor.ActButton.handle(), BM_CLICK, 0, 0);
    const HMENU menu = user::WaitForPopUp();
    DismissMenu();
    Settle(editor);
    return menu;
}

void LogoBrowser::ChooseSet(SelPictureForm& editor, const std::string& name) {
    SendMessageA(editor.NameLogoSet.handle(), CB_SETCURSEL,
                 static_cast<WPARAM>(editor.NameLogoSet.FindItem(name)), 0);
    SendMessageA(editor.handle(), WM_COMMAND, MAKEWPARAM(ID_NameLogoSet, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(editor.NameLogoSet.handle()));
}

void LogoBrowser::TypeName(SelPictureForm& editor, const std::string& name) {
    RECT r{};
    GetWindowRect(editor.NameLogoSet.handle(), &r);
    user::ClickAt({r.left + 20, (r.top + r.bottom) / 2});
    WaitUntil([&] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(0, &info);
        return IsChild(editor.NameLogoSet.handle(), info.hwndFocus);
    });
    user::Press(VK_END);
    user::Press(VK_HOME, {VK_SHIFT});
    if (name.empty())
        user::Press(VK_DELETE);
    else
        user::Type(name);
    WaitUntil([&] { return editor.NameLogoSet.Text() == name; });
    Settle(editor);
}

void LogoBrowser::Press(Control& button) { SendMessageA(button.handle(), BM_CLICK, 0, 0); }

user::Box LogoBrowser::PressAndAnswer(Control& button, int answer) {
    PostMessageA(button.handle(), BM_CLICK, 0, 0);
    const user::Box box = user::AnswerBox(answer);
    user::LetFinish(button.handle());
    return box;
}

void LogoBrowser::Run(SelPictureForm& editor, int command) {
    SendMessageA(editor.handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

user::Box LogoBrowser::RunAndAnswer(SelPictureForm& editor, int command, int answer) {
    PostMessageA(editor.handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    const user::Box box = user::AnswerBox(answer);
    Settle(editor);
    return box;
}

void LogoBrowser::Fill(SelPictureForm& editor, const std::string& name, int slot) {
    Pick(editor, name);
    Press(editor.AddButton[slot]);
}

void LogoBrowser::RunAndAnswerShell(SelPictureForm& editor, int command, int answer) {
    PostMessageA(editor.handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    EXPECT_TRUE(user::AnswerShell(answer));
    Settle(editor);
}

std::vector<std::string> LogoBrowser::InTheBin() { return NamesIn(BinFolder() + "Trash\\files\\"); }

void LogoBrowser::DismissMenu() {
    user::Press(VK_ESCAPE);
    Await([] { return user::FindTop("#32768") == nullptr; }, "menu gone");
}

std::vector<std::string> LogoBrowser::Listed(SelPictureForm& editor) {
    std::vector<std::string> names;
    for (int i = 0; i < editor.LogoList.Count(); ++i) names.push_back(editor.LogoList.ItemText(i));
    return names;
}

}  // namespace vistrel::test
