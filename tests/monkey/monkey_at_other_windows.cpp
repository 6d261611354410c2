#include <algorithm>

#include "tests/monkey/monkey.h"

namespace vistrel::test {
namespace {

/// Where the system's dialogs for files have the box for a name.
constexpr int kFileNameBox = 0x480;

BOOL CALLBACK AddIfUsable(HWND control, LPARAM found) {
    if (IsWindowVisible(control) && IsWindowEnabled(control))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(control);
    return TRUE;
}

std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> controls;
    EnumChildWindows(window, AddIfUsable, reinterpret_cast<LPARAM>(&controls));
    return controls;
}

/// Everything that windows for making and changing sets can do in one go.
constexpr Permits kMaking = {.renamed = 1, .removed = 1, .added = 1, .changed = true};
constexpr Permits kMakingMany = {.added = 100, .changed = true};

Permits PermitsOf(HWND window) {
    const std::string kind = user::ClassOf(window);
    if (kind == "FrmManySets") return kMakingMany;
    return kind == "FrmOptions" ? Permits{.installed = true} : kMaking;
}

}  // namespace

std::span<const Monkey::Deed> Monkey::AtDialog() {
    static constexpr Deed kDeeds[] = {{"answer", 1, &Monkey::AnswerDialog}};
    return kDeeds;
}

std::span<const Monkey::Deed> Monkey::AtOtherWindow() {
    static constexpr Deed kDeeds[] = {
        {"click a control", 12, &Monkey::ClickControl},
        {"press a key", 6, &Monkey::PressKeyThere},
        {"drag", 2, &Monkey::DragThere},
        {"type a name", 3, &Monkey::TypeName},
        {"close", 2, &Monkey::CloseWindow},
    };
    return kDeeds;
}

bool Monkey::StandsInAForeignFolder(HWND window) const {
    if (user::ClassOf(window) != "SelPictureForm") return false;
    const std::string folder = user::TextOf(user::Control(window, ID_CurPath));
    return !folder.starts_with("C:\\Logos") && !folder.starts_with("C:\\Pictures");
}

bool Monkey::NamesAForeignFolder(HWND window) const {
    return user::ClassOf(window) == "FrmOptions" &&
           user::TextOf(user::Control(window, ID_TxtLogoPath)) != logos;
}

// What is asked was asked for by the deed before, and so was what comes of the answer.
Permits Monkey::AnswerDialog() {
    const HWND dialog = OtherWindow();
    user::Activate(dialog);
    const HWND nameBox = user::Control(dialog, kFileNameBox);
    if (nameBox && OneIn(2)) {
        static const std::string kFiles[] = {"C:\\Out\\one.zip", "C:\\Out\\two.zip",
                                             "C:\\no\\x.zip", "C:\\Pictures\\", "Q:\\x.bmp"};
        user::Type(OneOf(kFiles));
        user::Press(VK_RETURN);
        return {.added = 10};
    }
    std::vector<HWND> buttons;
    for (const int id : {IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO, IDCLOSE})
        if (const HWND button = GetDlgItem(dialog, id); button && IsWindowEnabled(button))
            buttons.push_back(button);
    if (buttons.empty() || OneIn(5))
        user::Press(OneIn(2) ? VK_ESCAPE : VK_RETURN);
    else
        user::Click(buttons[static_cast<std::size_t>(Below(static_cast<int>(buttons.size())))]);
    // A dialog that none of this closes.
    if (OneIn(10)) PostMessageA(dialog, WM_CLOSE, 0, 0);
    // One that was about to go lets Enter through to the list, where it installs.
    return {.installed = true};
}

Permits Monkey::ClickControl() {
    const HWND window = OtherWindow();
    if (StandsInAForeignFolder(window)) return CloseWindow();
    user::Activate(window);
    const auto controls = ControlsOf(window);
    if (controls.empty()) {
        user::ClickAt(AnyPointIn(window));
        return {};
    }
    const HWND control =
        controls[static_cast<std::size_t>(Below(static_cast<int>(controls.size())))];
    if (GetDlgCtrlID(control) == ID_BtnOK && NamesAForeignFolder(window)) return CloseWindow();
    const POINT at = AnyPointIn(control);
    log_.back() += ", control " + std::to_string(GetDlgCtrlID(control));
    switch (Below(8)) {
        case 0:
            user::DoubleClickAt(at);
            break;
        case 1:
            user::RightClickAt(at);
            break;
        default:
            user::ClickAt(at);
    }
    return PermitsOf(window);
}

Permits Monkey::PressKeyThere() {
    const HWND window = OtherWindow();
    if (StandsInAForeignFolder(window)) return CloseWindow();
    user::Activate(window);
    static constexpr WORD kKeys[] = {VK_TAB,   VK_TAB,   VK_UP,  VK_DOWN, VK_SPACE,
                                     VK_RIGHT, VK_LEFT,  VK_END, VK_F2,   VK_DELETE,
                                     VK_F5,    VK_PRIOR, VK_ADD, VK_APPS, VK_RETURN};
    const WORD key = OneOf(kKeys);
    if (key != VK_RETURN || !NamesAForeignFolder(window)) user::Press(key);
    return PermitsOf(window);
}

Permits Monkey::DragThere() {
    const HWND window = OtherWindow();
    if (StandsInAForeignFolder(window)) return CloseWindow();
    user::Activate(window);
    const POINT from = AnyPointIn(window), to = AnyPointIn(window);
    // On the frame's edge it would be the window's size.
    if (WindowFromPoint(from)) user::Drag(from, to);
    return PermitsOf(window);
}

Permits Monkey::TypeName() {
    const HWND window = OtherWindow();
    if (StandsInAForeignFolder(window) || user::ClassOf(window) == "FrmOptions")
        return CloseWindow();
    user::Activate(window);
    user::Type(AnyName().substr(0, 40));
    return PermitsOf(window);
}

Permits Monkey::CloseWindow() {
    const HWND window = OtherWindow();
    if (OneIn(2))
        user::Press(VK_ESCAPE);
    else
        PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    return PermitsOf(window);
}

}  // namespace vistrel::test
