#include "tests/adjust/adjust_fixture.h"

#include "pictures/compose/stages.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {
namespace {

/// What the left button does, with the place where it does it.
void SendMouse(DWORD what, POINT at) {
    const auto part = [](LONG place, int metric) {
        const int size = GetSystemMetrics(metric);
        return (place * 65536 + size / 2) / size;
    };
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = part(at.x, SM_CXSCREEN);
    input.mi.dy = part(at.y, SM_CYSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | what;
    SendInput(1, &input, sizeof input);
}

}  // namespace

using namespace editor;
using namespace pictures;

Adjusting::Adjusting() { Put(photo, JpgOf(TestPicture(800, 300))); }

HWND Adjusting::WaitForIt() {
    const HWND window = user::WaitForTop("FrmAdjust");
    EXPECT_NE(window, nullptr);
    user::Activate(window);
    user::LetFinish(window);
    return window;
}

HWND Adjusting::OpenOn(SelPictureForm& editor, const std::string& picture) {
    Pick(editor, picture);
    Settle(editor);
    EXPECT_TRUE(user::Click(editor.AdjustButton.handle()));
    return WaitForIt();
}

void Adjusting::CloseBy(SelPictureForm& editor, HWND window, int button) {
    constexpr int kTries = 3;
    bool gone = false;
    for (int i = 0; i < kTries && !gone; ++i) {
        EXPECT_TRUE(user::Click(Item(window, button)));
        gone = user::WaitUntilGone(window, 7000);
    }
    EXPECT_TRUE(gone);
    Settle(editor);
}

user::Box Adjusting::PressOkAndAnswer(HWND window) {
    PostMessageA(Item(window, IDOK), BM_CLICK, 0, 0);
    const user::Box box = user::AnswerBox(IDOK);
    user::LetFinish(window);
    return box;
}

void Adjusting::TurnTo(HWND window, int page) {
    const HWND tabs = Item(window, ID_AdjustPages);
    RECT r{};
    SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&r));
    POINT at{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    ClientToScreen(tabs, &at);
    user::ClickAt(at);
    Await([&] { return SendMessageA(tabs, TCM_GETCURSEL, 0, 0) == page; }, "page turned");
    user::LetFinish(window);
}

void Adjusting::AddLine(HWND window, const std::string& text) {
    const HWND lines = Item(window, ID_TextLines);
    const auto count = SendMessageA(lines, LVM_GETITEMCOUNT, 0, 0);
    EXPECT_TRUE(user::Click(Item(window, ID_BtnAddLine)));
    Await([&] { return SendMessageA(lines, LVM_GETEDITCONTROL, 0, 0) != 0; }, "label edited");
    user::Type(text);
    user::Press(VK_RETURN);
    Await([&] { return SendMessageA(lines, LVM_GETEDITCONTROL, 0, 0) == 0; }, "label taken");
    EXPECT_EQ(SendMessageA(lines, LVM_GETITEMCOUNT, 0, 0), count + 1);
}

SIZE Adjusting::BoxSize(HWND window) {
    RECT r{};
    GetClientRect(Item(window, ID_ScreenBox), &r);
    return {r.right, r.bottom};
}

void Adjusting::Hold(POINT at) {
    user::MoveTo(at);
    SendMouse(MOUSEEVENTF_LEFTDOWN, at);
}

void Adjusting::HoldUntil(POINT at, const std::function<bool()>& condition, const char* what) {
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        Hold(at);
        if (WaitUntil(condition, 7000)) return;
        LetGo(at);
    }
    ADD_FAILURE() << what;
}

void Adjusting::MoveHeld(POINT to) {
    user::MoveTo(to);
    SendMouse(0, to);
}

void Adjusting::LetGo(POINT at) { SendMouse(MOUSEEVENTF_LEFTUP, at); }

POINT Adjusting::OnScreen(HWND window, int x, int y) {
    const SIZE size = BoxSize(window);
    POINT at{(2 * x + 1) * size.cx / 640, (2 * y + 1) * size.cy / 800};
    ClientToScreen(Item(window, ID_ScreenBox), &at);
    return at;
}

void Adjusting::DragInBox(HWND window, POINT from, POINT to) {
    ClientToScreen(Item(window, ID_ScreenBox), &from);
    ClientToScreen(Item(window, ID_ScreenBox), &to);
    user::Drag(from, to);
    user::LetFinish(window);
}

std::string Adjusting::MadeOf(const std::string& path,
                              const compose::Composition& composition) const {
    const std::string file = root + "expected.sys";
    EXPECT_EQ(compose::MakeScreen(path, file, composition), ConversionResult::Written);
    return *Contents(file);
}

COLORREF Adjusting::ColorAt(HWND window, int x, int y) {
    return seen::PixelAt(OnScreen(window, x, y));
}

}  // namespace vistrel::test
