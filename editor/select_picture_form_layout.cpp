// Where the Logo browser's controls stand: from left to right the list, the preview above the set's
// type and name, and the slots.
#include <algorithm>

#include "controls/screen_metrics.h"
#include "editor/select_picture_form.h"
#include "pictures/draw_preview.h"

namespace vistrel {
namespace {

/// Pixels at 96 dots an inch, made as many as this screen needs.
int Scaled(int pixels) { return pixels * PixelsPerInch() / 96; }

int Gap() { return Scaled(8); }

/// The height of a picture of this width on the 4:3 screen that shows it.
int ScreenHeight(int width) { return width * 3 / 4; }

/// The width in dialog units that the texts of all columns need beside each other.
constexpr Rect kNarrowest{0, 0, 384, 0};

/// The dropped list of a combo box counts as its height.
constexpr int kDroppedLines = 10;

}  // namespace

Size SelPictureForm::SmallestSize() const { return smallest_; }

void SelPictureForm::GrowToScreen() {
    smallest_ = WholeSize();
    Size least = ClientSize();
    const Rect area = WorkArea();
    const Size frame{smallest_.width - least.width, smallest_.height - least.height};
    // What the screen leaves beside the frame.
    const int width = area.width - frame.width;
    const int height = area.height - frame.height;
    // With large fonts the template is wider than a screen of 800 x 600.
    least.width = std::min(least.width, std::max(width, FromDialogUnits(kNarrowest).width));
    smallest_.width = least.width + frame.width;
    SetClientSize({std::max(least.width, std::min(width, Scaled(780))),
                   std::max(least.height, std::min(height, Scaled(490)))});
    CentreIn(area);
}

void SelPictureForm::Form_Resize(Size client) {
    const int gap = Gap();
    const int height = client.height - 2 * gap;
    const int buttonColumn = LblSlot[0].Bounds().width;
    const int list = std::max(Scaled(140), client.width * 22 / 100);
    // The preview is twice as wide as a slot.
    const int pictures = client.width - 4 * gap - list - buttonColumn - gap;
    const int slot = pictures / 3;
    const int preview = pictures - slot;

    PlaceList({gap, gap, list, height});
    PlacePreview({gap + list + gap, gap, preview, height});
    PlaceTypeAndName({gap + list + gap, gap, preview, height});
    PlaceSlots(
        {client.width - gap - slot - gap - buttonColumn, gap, slot + gap + buttonColumn, height},
        slot);
    RedrawPictures();
    // Controls that were moved over each other have copied what stood there.
    RepaintAll();
}

void SelPictureForm::PlaceList(const Rect& column) {
    const int line = Label1.Bounds().height;
    const int drive = Drive1.Bounds().height;
    const int label = column.top + drive + Gap() / 2;
    const int list = label + line + 2;
    Drive1.MoveTo({column.left, column.top, column.width, drive + kDroppedLines * line});
    Label1.MoveTo({column.left, label, column.width, line});
    LogoList.MoveTo({column.left, list, column.width, column.bottom() - list});
    LogoList.FitColumn();
}

void SelPictureForm::PlacePreview(const Rect& column) {
    const int line = Label1.Bounds().height;
    const int drive = Drive1.Bounds().height;
    const int top = column.top + drive + Gap() / 2;
    const int info = ImageInfo.Bounds().height;
    const int height = ScreenHeight(column.width);
    CurPath.MoveTo({column.left, column.top + (drive - line) / 2, column.width, line});
    CurView.MoveTo({column.left, top, column.width, height});
    ImageInfo.MoveTo({column.left, top + height + 2, column.width, info});
}

// At the bottom of the column: the frame with the types, the name below it.
void SelPictureForm::PlaceTypeAndName(const Rect& column) {
    const int line = Label3.Bounds().height;
    const int combo = NameLogoSet.Bounds().height;
    const int name = column.bottom() - combo;
    NameLogoSet.MoveTo({column.left, name, column.width, combo + kDroppedLines * line});
    Label3.MoveTo({column.left, name - 2 - line, column.width, line});

    const int option = OptCompSet.Bounds().height;
    const int step = option + Gap() / 4;
    const int frame = line + Gap() / 2 + 3 * step + Gap() / 2;
    const int top = name - 2 - line - Gap() - frame;
    Frame1.MoveTo({column.left, top, column.width, frame});
    int y = top + line + Gap() / 2;
    for (OptionButton* type : {&OptCompSet, &OptDefShut, &OptOnlyStart}) {
        type->MoveTo({column.left + Gap(), y, column.width - 2 * Gap(), option});
        y += step;
    }
}

void SelPictureForm::PlaceSlots(const Rect& column, int slotWidth) {
    const int slotHeight = ScreenHeight(slotWidth);
    const Rect button = ActButton.Bounds();
    const int below = column.bottom() - button.height;
    const int spare = below - Gap() - column.top - 3 * slotHeight;
    for (int i = 0; i < 3; ++i)
        PlaceSlot(i,
                  {column.left, column.top + i * (slotHeight + spare / 2), slotWidth, slotHeight});
    ActButton.MoveTo({column.left, below, button.width, button.height});
    CloseButton.MoveTo({column.right() - button.width, below, button.width, button.height});
}

void SelPictureForm::PlaceSlot(int index, const Rect& slot) {
    const Rect caption = LblSlot[index].Bounds();
    const Rect button = AddButton[index].Bounds();
    const int left = slot.right() + Gap();
    const int lower = slot.bottom() - button.height;
    ImgPreview[index].MoveTo(slot);
    SlotFrame[index].MoveTo(slot);
    LblSlot[index].MoveTo({left, slot.top, caption.width, caption.height});
    AddButton[index].MoveTo({left, lower - Gap() / 2 - button.height, button.width, button.height});
    DeleteButton[index].MoveTo({left, lower, button.width, button.height});
    const int text = caption.height;  // two lines, as the caption has
    // Within the frame, which its background must not cover.
    LblNotAval[index].MoveTo(
        {slot.left + 2, slot.top + (slot.height - text) / 2, slot.width - 4, text});
}

void SelPictureForm::RedrawPictures() {
    if (CurView.HasPicture()) DrawPreview(CurView.Tag(), CurView);
    for (PictureBox& slot : ImgPreview)
        if (slot.HasPicture()) DrawPreview(slot.Tag(), slot);
}

}  // namespace vistrel
