#include "tests/animate/animate_fixture.h"

#include <algorithm>

#include "pictures/convert.h"
#include "pictures/file.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;

Moving::Moving() {
    Put(root + "many.bmp", BmpOf(TestPicture(320, 400)));
    vistrel::pictures::ConvertToLogo(root + "many.bmp", still);
}

HWND Moving::WaitForIt() {
    const HWND window = user::WaitForTop("FrmAnimate");
    EXPECT_NE(window, nullptr);
    user::Activate(window);
    Follow(window);
    return window;
}

HWND Moving::OpenOnSlot(SelPictureForm& editor) {
    user::RightClick(editor.ImgPreview[0].handle());
    EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmMoveColors));
    return WaitForIt();
}

void Moving::CloseBy(SelPictureForm& editor, HWND window, int button) {
    constexpr int kTries = 3;
    bool gone = false;
    for (int i = 0; i < kTries && !gone; ++i) {
        EXPECT_TRUE(user::Click(Item(window, button)));
        gone = user::WaitUntilGone(window, 7000);
    }
    EXPECT_TRUE(gone);
    Settle(editor);
}

void Moving::Follow(HWND window) {
    // A window paints once no key or click waits for it any more.
    InvalidateRect(window, nullptr, FALSE);
    Await([&] { return !IsWindow(window) || !GetUpdateRect(window, nullptr, FALSE); }, "followed");
    user::LetFinish(window);
}

void Moving::TurnTo(HWND window, int page) {
    const HWND tabs = Item(window, ID_MovingPages);
    RECT r{};
    SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&r));
    POINT at{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    ClientToScreen(tabs, &at);
    user::ClickAt(at);
    Await([&] { return SendMessageA(tabs, TCM_GETCURSEL, 0, 0) == page; }, "page turned");
    Follow(window);
}

int Moving::LayerCount(HWND window) {
    return static_cast<int>(SendMessageA(Item(window, ID_Layers), LVM_GETITEMCOUNT, 0, 0));
}

void Moving::AddLayer(HWND window, int kind) {
    const int count = LayerCount(window);
    EXPECT_TRUE(user::Click(Item(window, ID_BtnAddLayer)));
    EXPECT_TRUE(user::ChooseFromPopUp(static_cast<unsigned>(ID_AddLayer + kind)));
    Await([&] { return LayerCount(window) == count + 1; }, "added");
    Follow(window);
}

POINT Moving::OnScreen(HWND window, int x, int y) {
    RECT size{};
    GetClientRect(Item(window, ID_MovingBox), &size);
    POINT at{(2 * x + 1) * size.right / 640, (2 * y + 1) * size.bottom / 800};
    ClientToScreen(Item(window, ID_MovingBox), &at);
    return at;
}

void Moving::DragOver(HWND window, POINT from, POINT to) {
    user::Drag(OnScreen(window, from.x, from.y), OnScreen(window, to.x, to.y));
    Follow(window);
}

void Moving::DragHolding(HWND window, WORD key, POINT from, POINT to) {
    user::WhileHolding(key, [&] { DragOver(window, from, to); });
}

screen::IndexedScreen Moving::ScreenOf(const std::string& path) {
    const auto bytes = vistrel::pictures::ReadWholeFile(path);
    EXPECT_TRUE(bytes) << path;
    const auto screen = bytes ? screen::ReadIndexedScreen(*bytes) : std::nullopt;
    EXPECT_TRUE(screen) << path;
    return screen.value_or(screen::IndexedScreen{});
}

screen::ScreenBounds Moving::MovingPart(const screen::IndexedScreen& screen) {
    screen::Area moving;
    for (std::size_t i = 0; i < screen.indices.size(); ++i)
        moving.in[i] = screen.IsAnimated() && screen.indices[i] >= screen.firstAnimated;
    return screen::BoundsOf(moving);
}

}  // namespace vistrel::test
