// How the Logo browser looks: nothing is cut off or covered, and the slots stand in line.
#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

/// The width that a control's text of one line needs.
int TextWidth(const Control& control) {
    const HDC dc = GetDC(control.handle());
    const auto font = SendMessageA(control.handle(), WM_GETFONT, 0, 0);
    const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HGDIOBJ>(font));
    RECT r{};
    DrawTextA(dc, control.Text().c_str(), -1, &r, DT_CALCRECT);
    SelectObject(dc, before);
    ReleaseDC(control.handle(), dc);
    return r.right;
}

void ExpectOrderly(SelPictureForm& editor) {
    const Size client = editor.ClientSize();
    for (const auto& [id, control] : editor.controls()) {
        if (!control->Visible()) continue;
        const Rect place = control->Bounds();
        EXPECT_GE(place.left, 0) << id;
        EXPECT_GE(place.top, 0) << id;
        EXPECT_LE(place.right(), client.width) << id;
        EXPECT_LE(place.bottom(), client.height) << id;
        for (const auto& [otherId, other] : editor.controls()) {
            // The frames lie around what they hold.
            const auto isFrame = [](int number) {
                return number == ID_Frame1 || (number >= ID_SlotFrame && number < ID_SlotFrame + 3);
            };
            const bool frame = isFrame(id) || isFrame(otherId);
            if (otherId <= id || !other->Visible() || frame) continue;
            EXPECT_FALSE(Overlap(place, other->Bounds())) << id << " and " << otherId;
        }
    }
    for (const Control* text :
         {static_cast<Control*>(&editor.OptDefShut), static_cast<Control*>(&editor.LblSlot[2]),
          static_cast<Control*>(&editor.ActButton), static_cast<Control*>(&editor.Label3),
          static_cast<Control*>(&editor.ImageInfo)})
        EXPECT_LE(TextWidth(*text), text->Bounds().width) << text->Text();
    for (const PictureBox& slot : editor.ImgPreview) {
        const Rect place = slot.Bounds();
        EXPECT_EQ(place.left, editor.ImgPreview[0].Bounds().left);
        EXPECT_EQ(place.width, editor.ImgPreview[0].Bounds().width);
        EXPECT_EQ(place.height, place.width * 3 / 4);
    }
    EXPECT_EQ(editor.CurView.Bounds().height, editor.CurView.Bounds().width * 3 / 4);
    EXPECT_GT(editor.CurView.Bounds().width, editor.ImgPreview[0].Bounds().width);
}

void Shot(SelPictureForm& editor, const std::string& name) {
    RedrawWindow(editor.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    user::TakeShot(name);
}

class Look : public LogoBrowser {
 protected:
    /// Each type of set with another verdict.
    static void LookAtTypes(SelPictureForm& editor, const std::string& size) {
        const struct {
            OptionButton& option;
            const char* picture;
            const char* name;
        } types[] = {{editor.OptCompSet, "Lighthouse.jpg", "complete"},
                     {editor.OptDefShut, "ready.sys", "default"},
                     {editor.OptOnlyStart, "notes.txt", "startup"}};
        for (const auto& type : types) {
            Press(type.option);
            if (editor.LogoList.FindItem(type.picture) < 0)
                editor.LogoList.AddItem(type.picture, "im");
            Pick(editor, type.picture);
            ExpectOrderly(editor);
            Shot(editor, "editor_" + size + "_" + type.name);
        }
    }
};

TEST_F(Look, IsOrderlyInEachTypeAtItsFirstSizeAndAtItsSmallest) {
    Store("SearchLogoPath", TextValue("C:\\test\\pictures"));
    Store("LogoPath", TextValue("C:\\test\\sets\\"));
    Store("DefaultLogoSet", TextValue("Night Sky"));
    Put("C:\\test\\pictures\\ready.sys",
        Contents("C:\\test\\sets\\Night Sky\\LOGO.SYS").value_or(""));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Green Hills");
        LookAtTypes(editor, "large");
        SetWindowPos(editor.handle(), nullptr, 0, 0, 1, 1, SWP_NOZORDER);
        RECT r{};
        GetWindowRect(editor.handle(), &r);
        // A screen of 640 x 480 with a taskbar of 28 pixels, where letters are 13 pixels high as
        // those of Windows 98. This machine's may be smaller, and the window with them.
        RECT letter{0, 0, 4, 8};
        MapDialogRect(editor.handle(), &letter);
        RECT client{};
        GetClientRect(editor.handle(), &client);
        const LONG frame = r.bottom - client.bottom;
        EXPECT_LE(r.right, 640);
        EXPECT_LE(frame + (r.bottom - frame) * 13 / letter.bottom, 452);
        LookAtTypes(editor, "small");
        ShowWindow(editor.handle(), SW_MAXIMIZE);
        Settle(editor);
        LookAtTypes(editor, "maximised");
    });
    RemoveTree("C:\\test\\pictures\\ready.sys");
}

}  // namespace
}  // namespace vistrel::test
