#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/monkey/monkey.h"

namespace vistrel::test {

std::span<const Monkey::Deed> Monkey::AtMainWindow() {
    static constexpr Deed kDeeds[] = {
        {"click the list", 20, &Monkey::ClickList},
        {"double-click the list", 3, &Monkey::DoubleClickList},
        {"press a key", 12, &Monkey::PressKey},
        {"rename", 6, &Monkey::Rename},
        {"delete", 3, &Monkey::Delete},
        {"press a tool", 10, &Monkey::PressTool},
        {"open a menu", 10, &Monkey::OpenMenu},
        {"open the pop-up menu", 5, &Monkey::OpenPopUp},
        {"drag from the list", 3, &Monkey::DragFromList},
        {"turn the wheel", 2, &Monkey::TurnWheel},
        {"find", 4, &Monkey::Find},
        {"undo", 3, &Monkey::Undo},
        {"resize", 2, &Monkey::Resize},
        {"compare with the disk", 4, &Monkey::CompareListWithDisk},
        {"close", 1, &Monkey::Close},
        {"kill", 1, &Monkey::Kill},
        {"change the display", 1, &Monkey::ChangeDisplay},
        {"rename a set outside", 1, &Monkey::RenameSetOutside},
        {"delete a set outside", 1, &Monkey::DeleteSetOutside},
        {"copy a set outside", 2, &Monkey::CopySetOutside},
        {"damage a screen", 1, &Monkey::DamageScreenOutside},
        {"protect a screen", 1, &Monkey::ProtectScreen},
        {"hold a screen open", 1, &Monkey::HoldScreenOpen},
    };
    return kDeeds;
}

std::span<const Monkey::Deed> Monkey::AtMenu() {
    static constexpr Deed kDeeds[] = {
        {"choose from the menu", 3, &Monkey::ChooseFromMenu},
        {"leave the menu", 1, &Monkey::LeaveMenu},
    };
    return kDeeds;
}

Permits Monkey::AnyCommand() const {
    return {
        .renamed = 1, .removed = SelectedSets(), .added = 1, .changed = true, .installed = true};
}

Permits Monkey::ClickList() {
    user::Activate(MainWindow());
    const POINT at = AnyPointIn(List());
    if (OneIn(6))
        user::WhileHolding(OneIn(2) ? VK_CONTROL : VK_SHIFT, [&] { user::ClickAt(at); });
    else
        user::ClickAt(at);
    return {};
}

Permits Monkey::DoubleClickList() {
    user::Activate(MainWindow());
    user::DoubleClickAt(AnyPointIn(List()));
    return {.installed = true};
}

Permits Monkey::Typed(Permits permits) const {
    if (FindWindowExA(List(), nullptr, "Edit", nullptr)) permits.renamed = 1;
    return permits;
}

Permits Monkey::PressKey() {
    user::Activate(MainWindow());
    static constexpr WORD kKeys[] = {VK_UP,   VK_DOWN,   VK_HOME, VK_END,    VK_PRIOR, VK_NEXT,
                                     VK_LEFT, VK_RIGHT,  VK_TAB,  VK_ESCAPE, VK_BACK,  VK_SPACE,
                                     VK_F5,   VK_RETURN, 'S',     'C',       'M',      VK_F11};
    user::Press(OneOf(kKeys));
    return Typed({.installed = true});
}

Permits Monkey::Rename() {
    user::Activate(MainWindow());
    SetFocus(List());
    user::Press(VK_F2);
    const auto labelIsOpen = [this] { return FindWindowExA(List(), nullptr, "Edit", nullptr); };
    if (!WaitUntil(labelIsOpen, 500)) return {.renamed = 1};
    user::Type(AnyName().substr(0, 60));
    switch (Below(4)) {
        case 0:
            user::Press(VK_ESCAPE);
            break;
        case 1:
            user::ClickAt(AnyPointIn(MainWindow()));
            break;
        default:
            user::Press(VK_RETURN);
    }
    // A click elsewhere may be one on anything, and another kind of set has other screens.
    return AnyCommand();
}

Permits Monkey::Delete() {
    user::Activate(MainWindow());
    const Permits permits{.removed = SelectedSets()};
    user::Press(VK_DELETE);
    return permits;
}

Permits Monkey::PressTool() {
    user::Activate(MainWindow());
    const Permits permits = AnyCommand();
    user::ClickAt(AnyPointIn(user::Control(MainWindow(), ID_ActiveBar1)));
    return permits;
}

Permits Monkey::OpenMenu() {
    static constexpr char kLetters[] = {'L', 'V', 'O', 'H', 'I', 'T', 'S', 'N', 'A', 'D'};
    user::Activate(MainWindow());
    user::Press(static_cast<WORD>(OneOf(kLetters)), {VK_MENU});
    return {};
}

Permits Monkey::OpenPopUp() {
    user::Activate(MainWindow());
    if (OneIn(3))
        user::Press(VK_APPS);
    else
        user::RightClickAt(AnyPointIn(OneIn(4) ? MainWindow() : List()));
    return {};
}

Permits Monkey::ChooseFromMenu() {
    const Permits permits = AnyCommand();
    for (int i = Below(12); i >= 0; --i) user::Press(OneIn(8) ? VK_RIGHT : VK_DOWN);
    user::Press(VK_RETURN);
    return permits;
}

Permits Monkey::LeaveMenu() {
    for (int i = 0; i < 3 && MenuIsOpen(); ++i) user::Press(VK_ESCAPE);
    return {};
}

Permits Monkey::DragFromList() {
    user::Activate(MainWindow());
    user::Drag(AnyPointIn(List()), AnyPointIn(OneIn(2) ? List() : MainWindow()));
    return {};
}

Permits Monkey::TurnWheel() {
    user::MoveTo(AnyPointIn(List()));
    user::TurnWheel(Below(7) - 3);
    return {};
}

Permits Monkey::Find() {
    user::Activate(MainWindow());
    user::Press('F', {VK_CONTROL});
    static const std::string kParts[] = {"s", "un", "n i", "xyz", "C", " "};
    user::Type(OneOf(kParts));
    const Permits permits = Typed({});
    if (OneIn(2)) user::Press(VK_ESCAPE);
    return permits;
}

Permits Monkey::Undo() {
    user::Activate(MainWindow());
    user::Press('Z', {VK_CONTROL});
    return {.installed = true};
}

Permits Monkey::Resize() {
    const HWND main = MainWindow();
    if (OneIn(3))
        PostMessageA(main, WM_SYSCOMMAND, IsZoomed(main) ? SC_RESTORE : SC_MAXIMIZE, 0);
    else if (!IsZoomed(main))
        SetWindowPos(main, nullptr, Below(100), Below(100), 200 + Below(900), 150 + Below(700),
                     SWP_NOZORDER);
    return {};
}

Permits Monkey::Close() {
    PostMessageA(MainWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
    user::WaitUntilGone(MainWindow(), 5000);
    return {};
}

Permits Monkey::Kill() {
    EndAtOnce();
    StartAnew();
    return {};
}

Permits Monkey::CompareListWithDisk() {
    int sets = 0;
    for (const auto& [name, files] : ReadLibrary(logos)) sets += !name.empty();
    const auto shown = [this] {
        return static_cast<int>(SendMessageA(List(), LVM_GETITEMCOUNT, 0, 0));
    };
    // Another program's window may come to the front just now and take the keys.
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        CloseOtherPrograms();
        user::Activate(MainWindow());
        user::Press('F', {VK_CONTROL});
        user::Press(VK_ESCAPE);
        user::Press(VK_F5);
        if (WaitUntil([&] { return shown() == sets; }, 3000) || !NothingIsGoingOn()) return {};
    }
    Fail("the list shows " + std::to_string(shown()) + " sets, the disk has " +
         std::to_string(sets));
    return {};
}

}  // namespace vistrel::test
