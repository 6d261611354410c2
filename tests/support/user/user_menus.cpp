// Menus and message boxes as the tests' user sees and answers them.
#include <algorithm>

#include "tests/support/user/user.h"

namespace vistrel::user {

namespace {

/// An item on the way to a command.
struct Step {
    HMENU menu;
    int position;
};
using MenuPath = std::vector<Step>;

bool FindCommand(HMENU menu, unsigned command, MenuPath* path) {
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        MENUITEMINFOA item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_TYPE | MIIM_ID | MIIM_SUBMENU;
        if (!GetMenuItemInfoA(menu, i, TRUE, &item) || (item.fType & MFT_SEPARATOR) != 0) continue;
        path->push_back({menu, i});
        if (item.hSubMenu != nullptr ? FindCommand(item.hSubMenu, command, path)
                                     : item.wID == command) {
            return true;
        }
        path->pop_back();
    }
    return false;
}

BOOL CALLBACK CountPopUp(HWND window, LPARAM count) {
    if (IsWindowVisible(window) && ClassOf(window) == "#32768") ++*reinterpret_cast<int*>(count);
    return TRUE;
}

/// How many pop-up menus are open, one out of the other.
int OpenPopUps() {
    int count = 0;
    EnumWindows(CountPopUp, reinterpret_cast<LPARAM>(&count));
    return count;
}

/// Clicks an item of a menu and looks at what comes of it; clicks again when nothing does.
template <typename Condition>
bool ClickUntil(HWND window, const Step& step, Condition condition) {
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        RECT area = {};
        if (!GetMenuItemRect(window, step.menu, static_cast<UINT>(step.position), &area)) break;
        ClickAt({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
        if (WaitUntil(condition, 3000)) return true;
    }
    return false;
}

bool OpenInner(HWND window, const Step& step) {
    const int open = OpenPopUps();
    return ClickUntil(window, step, [&] { return OpenPopUps() > open; });
}

/// Leaves all menus. Returns false, as whoever could not choose does.
bool LeaveMenus() {
    for (int tries = 5; tries > 0 && OpenPopUps() > 0; --tries) {
        const int open = OpenPopUps();
        Press(VK_ESCAPE);
        WaitUntil([&] { return OpenPopUps() < open; }, 1000);
    }
    return false;
}

/// Goes the rest of the way in an open pop-up.
bool WalkDown(MenuPath::const_iterator step, MenuPath::const_iterator end) {
    for (; step + 1 != end; ++step) {
        if (!OpenInner(nullptr, *step)) return false;
    }
    return ClickUntil(nullptr, *step, [] { return OpenPopUps() == 0; });
}

BOOL CALLBACK CollectChild(HWND window, LPARAM children) {
    reinterpret_cast<std::vector<HWND>*>(children)->push_back(window);
    return TRUE;
}

std::vector<HWND> ChildrenOf(HWND window) {
    std::vector<HWND> children;
    EnumChildWindows(window, CollectChild, reinterpret_cast<LPARAM>(&children));
    return children;
}

unsigned IconOf(HWND picture) {
    const auto icon = reinterpret_cast<HICON>(SendMessageA(picture, STM_GETICON, 0, 0));
    constexpr struct {
        unsigned flag;
        int name;
    } kIcons[] = {{MB_ICONHAND, 32513},
                  {MB_ICONQUESTION, 32514},
                  {MB_ICONEXCLAMATION, 32515},
                  {MB_ICONASTERISK, 32516}};
    for (const auto& known : kIcons) {
        if (icon == LoadIconA(nullptr, MAKEINTRESOURCEA(known.name))) return known.flag;
    }
    return 0;
}

/// Fills the box from the controls of a dialog. Returns false when it is not a message box: one
/// has no controls but buttons, at most one icon and one text.
bool ReadBox(HWND dialog, Box* box) {
    int texts = 0;
    for (HWND child : ChildrenOf(dialog)) {
        if (!IsWindowVisible(child)) continue;
        const LONG style = GetWindowLongA(child, GWL_STYLE);
        if (ClassOf(child) == "Button") {
            box->buttons.push_back(GetDlgCtrlID(child));
            if ((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
                box->default_button = GetDlgCtrlID(child);
        } else if (ClassOf(child) != "Static") {
            return false;
        } else if ((style & SS_TYPEMASK) == SS_ICON) {
            box->icon = IconOf(child);
        } else {
            box->text = TextOf(child);
            ++texts;
        }
    }
    if (texts != 1 || box->buttons.empty()) return false;
    std::sort(box->buttons.begin(), box->buttons.end(), [&](int left, int right) {
        return CentreOf(GetDlgItem(dialog, left)).x < CentreOf(GetDlgItem(dialog, right)).x;
    });
    box->window = dialog;
    box->title = TextOf(dialog);
    return true;
}

/// Presses the keys that open a menu, and again where nothing has come of them.
HWND PressUntilMenu(WORD key, const std::vector<WORD>& held, DWORD process) {
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        Press(key, held);
        const HWND menu = WaitForTop("#32768", "", process, 5000);
        if (menu != nullptr) return menu;
    }
    return nullptr;
}

}  // namespace

bool ChooseFromMenuBar(HWND window, unsigned command) {
    MenuPath path;
    const HMENU bar = GetMenu(window);
    if (!FindCommand(bar, command, &path)) return false;
    return (OpenInner(window, path[0]) && WalkDown(path.begin() + 1, path.end())) || LeaveMenus();
}

HMENU WaitForPopUp() {
    const HWND window = WaitForTop("#32768");
    if (window == nullptr) return nullptr;
    constexpr UINT kGetMenu = 0x01E1;
    return reinterpret_cast<HMENU>(SendMessageA(window, kGetMenu, 0, 0));
}

HMENU PopUpByKey() {
    PressUntilMenu(VK_APPS, {}, 0);
    return WaitForPopUp();
}

HWND OpenMenuByLetter(char letter, DWORD process) {
    return PressUntilMenu(static_cast<WORD>(letter), {VK_MENU}, process);
}

bool ChooseFromPopUp(unsigned command) {
    const HMENU menu = WaitForPopUp();
    MenuPath path;
    if (menu == nullptr) return false;
    if (!FindCommand(menu, command, &path)) return LeaveMenus();
    return WalkDown(path.begin(), path.end()) || LeaveMenus();
}

Box WaitForBox(DWORD process, DWORD milliseconds) {
    if (process == 0) process = GetCurrentProcessId();
    Box box;
    WaitUntil(
        [&] {
            const HWND dialog = FindTop("#32770", "", process);
            Box seen;
            const bool found = dialog != nullptr && ReadBox(dialog, &seen) && IsInFront(dialog);
            if (found) box = seen;
            return found;
        },
        milliseconds);
    return box;
}

namespace {

bool ClickUntilGone(HWND dialog, int button) {
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        Click(GetDlgItem(dialog, button));
        if (WaitUntilGone(dialog, 7000)) return true;
    }
    return false;
}

}  // namespace

Box AnswerBox(int button, DWORD process) {
    const Box box = WaitForBox(process);
    if (box.window) ClickUntilGone(box.window, button);
    return box;
}

bool AnswerShell(int button, DWORD process) {
    const HWND question = WaitForTop("#32770", "", process);
    if (!question) return false;
    Activate(question);
    return ClickUntilGone(question, button);
}

}  // namespace vistrel::user
