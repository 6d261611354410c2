// Where the Logo browser's controls stand: from left to right the list, the preview above the set's
// type and name, and the slots.
#include <algorithm>

#include "controls/screen_metrics.h"
#include "editor/select_picture_form.h"
#include "pictures/preview/draw_preview.h"

namespace vistrel::editor {
namespace {

/// Pixels at 96 dots an inch, made as many as this screen needs.
int Scaled(int pixels) { return pixels * controls::PixelsPerInch() / 96; }

int Gap() { return Scaled(8); }

/// The height of a picture of this width on the 4:3 screen that shows it.
int ScreenHeight(int width) { return width * 3 / 4; }

/// The width of one of this height.
int ScreenWidth(int height) { return height * 4 / 3; }

/// The width in dialog units that the texts of all columns need beside each other.
constexpr controls::Rect kNarrowest{0, 0, 384, 0};

/// Pixels at 96 dots an inch.
constexpr int kButtonWidth = 75;

/// The dropped list of a combo box counts as its height.
constexpr int kDroppedLines = 10;

}  // namespace

controls::Size SelPictureForm::SmallestSize() const { return smallest_; }

void SelPictureForm::GrowToScreen() {
    smallest_ = WholeSize();
    controls::Size least = ClientSize();
    const controls::Rect area = controls::WorkArea();
    const controls::Size frame{smallest_.width - least.width, smallest_.height - least.height};
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

void SelPictureForm::Form_Resize(controls::Size client) {
    const int gap = Gap();
    const int line = LblWritten.Bounds().height;
    const int height = client.height - 2 * gap - line;
    const Columns columns = ColumnsFor(client.width - 4 * gap, height);
    const int preview = gap + columns.list + gap;
    const int slots = preview + columns.preview + gap;
    PlaceList({gap, gap, columns.list, height});
    PlacePreview({preview, gap, columns.preview, height});
    PlaceTypeAndName({preview, gap, columns.preview, height});
    PlaceSlots({slots, gap, client.width - gap - slots, height}, columns);
    // Along the window's edge, as a status bar.
    LblWritten.MoveTo({2, client.height - line - 2, client.width - 4, line});
    RedrawPictures();
    // Controls that were moved over each other have copied what stood there.
    RepaintAll();
}

// Captions and buttons stand beside the slots. Where there is height enough they go beneath, which
// leaves the pictures more of the width.
SelPictureForm::Columns SelPictureForm::ColumnsFor(int width, int height) const {
    const int gap = Gap();
    const controls::Rect caption = LblSlot[0].Bounds();
    const int slotHeight = (height - ActButton.Bounds().height - 3 * gap) / 3;
    const int leastList = std::max(Scaled(140), width * 18 / 100);
    Columns columns;
    columns.slot =
        std::min(ScreenWidth(slotHeight - caption.height - gap), (width - leastList) / 3);
    columns.captionsBeneath = columns.slot >= caption.width + 2 * gap + 2 * Scaled(64);
    int slots = columns.slot;
    if (!columns.captionsBeneath) {
        const int list = std::max(Scaled(140), width * 22 / 100);
        // The preview is twice as wide as a slot.
        columns.slot = std::min(ScreenWidth(slotHeight), (width - list - caption.width - gap) / 3);
        slots = columns.slot + gap + caption.width;
    }
    const int previewHeight = height - RoomAbovePreview() - RoomBelowPreview();
    columns.preview =
        std::min(ScreenWidth(previewHeight),
                 columns.captionsBeneath ? width - leastList - slots : 2 * columns.slot);
    columns.list = width - slots - columns.preview;
    return columns;
}

int SelPictureForm::RoomAbovePreview() const { return Drive1.Bounds().height + Gap() / 2; }

int SelPictureForm::TypeFrameHeight() const {
    return Label3.Bounds().height + Gap() + 3 * (OptCompSet.Bounds().height + Gap() / 4);
}

int SelPictureForm::RoomBelowPreview() const {
    const int name = Label3.Bounds().height + 2 + NameLogoSet.Bounds().height;
    return 2 + ImageInfo.Bounds().height + Gap() / 2 + AdjustButton.Bounds().height + Gap() +
           TypeFrameHeight() + Gap() + name;
}

void SelPictureForm::PlaceList(const controls::Rect& column) {
    const int line = Label1.Bounds().height;
    const int drive = Drive1.Bounds().height;
    const int label = column.top + drive + Gap() / 2;
    const int list = label + line + 2;
    Drive1.MoveTo({column.left, column.top, column.width, drive + kDroppedLines * line});
    Label1.MoveTo({column.left, label, column.width, line});
    LogoList.MoveTo({column.left, list, column.width, column.bottom() - list});
    LogoList.FitColumn();
}

void SelPictureForm::PlacePreview(const controls::Rect& column) {
    const int line = Label1.Bounds().height;
    const int drive = Drive1.Bounds().height;
    const int top = column.top + RoomAbovePreview();
    const int info = ImageInfo.Bounds().height;
    const int height = ScreenHeight(column.width);
    CurPath.MoveTo({column.left, column.top + (drive - line) / 2, column.width, line});
    CurView.MoveTo({column.left, top, column.width, height});
    ImageInfo.MoveTo({column.left, top + height + 2, column.width, info});
    const controls::Rect button = AdjustButton.Bounds();
    AdjustButton.MoveTo(
        {column.left, top + height + 2 + info + Gap() / 2, button.width, button.height});
}

// At the bottom of the column: the frame with the types, the name below it.
void SelPictureForm::PlaceTypeAndName(const controls::Rect& column) {
    const int line = Label3.Bounds().height;
    const int combo = NameLogoSet.Bounds().height;
    const int name = column.bottom() - combo;
    NameLogoSet.MoveTo({column.left, name, column.width, combo + kDroppedLines * line});
    Label3.MoveTo({column.left, name - 2 - line, column.width, line});

    const int option = OptCompSet.Bounds().height;
    const int step = option + Gap() / 4;
    const int frame = TypeFrameHeight();
    const int top = name - 2 - line - Gap() - frame;
    Frame1.MoveTo({column.left, top, column.width, frame});
    int y = top + line + Gap() / 2;
    for (controls::OptionButton* type : {&OptCompSet, &OptDefShut, &OptOnlyStart}) {
        type->MoveTo({column.left + Gap(), y, column.width - 2 * Gap(), option});
        y += step;
    }
}

void SelPictureForm::PlaceSlots(const controls::Rect& column, const Columns& columns) {
    const int captions = columns.captionsBeneath ? Gap() / 2 + LblSlot[0].Bounds().height : 0;
    const int slotHeight = ScreenHeight(columns.slot);
    const controls::Rect button = ActButton.Bounds();
    const int below = column.bottom() - button.height;
    const int spare = below - Gap() - column.top - 3 * (slotHeight + captions);
    for (int i = 0; i < 3; ++i) {
        const int top = column.top + i * (slotHeight + captions + spare / 2);
        const controls::Rect slot{column.left, top, columns.slot, slotHeight};
        PlaceSlot(i, slot);
        if (columns.captionsBeneath)
            PlaceBeneath(i, slot);
        else
            PlaceBeside(i, slot);
    }
    ActButton.MoveTo({column.left, below, button.width, button.height});
    CloseButton.MoveTo({column.right() - button.width, below, button.width, button.height});
}

void SelPictureForm::PlaceSlot(int index, const controls::Rect& slot) {
    ImgPreview[index].MoveTo(slot);
    SlotFrame[index].MoveTo(slot);
    // Within the frame, which its background must not cover.
    const int width = slot.width - 2 * Gap();
    const int height = LblNotAval[index].HeightAt(width);
    LblNotAval[index].MoveTo(
        {slot.left + Gap(), slot.top + (slot.height - height) / 2, width, height});
}

void SelPictureForm::PlaceBeside(int index, const controls::Rect& slot) {
    const controls::Rect caption = LblSlot[index].Bounds();
    const int width = Scaled(kButtonWidth);
    const int height = AddButton[index].Bounds().height;
    const int left = slot.right() + Gap();
    const int lower = slot.bottom() - height;
    LblSlot[index].MoveTo({left, slot.top, caption.width, caption.height});
    AddButton[index].MoveTo({left, lower - Gap() / 2 - height, width, height});
    DeleteButton[index].MoveTo({left, lower, width, height});
}

void SelPictureForm::PlaceBeneath(int index, const controls::Rect& slot) {
    const controls::Rect caption = LblSlot[index].Bounds();
    const int room = slot.width - caption.width - 2 * Gap();
    const int width = std::min(Scaled(kButtonWidth), room / 2);
    const int height = AddButton[index].Bounds().height;
    const int top = slot.bottom() + Gap() / 2;
    const int right = slot.right() - width;
    LblSlot[index].MoveTo({slot.left, top, caption.width, caption.height});
    AddButton[index].MoveTo({right - Gap() - width, top, width, height});
    DeleteButton[index].MoveTo({right, top, width, height});
}

void SelPictureForm::RedrawPictures() {
    if (CurView.HasPicture()) preview::DrawPreview(CurView.Tag(), CurView);
    for (controls::PictureBox& slot : ImgPreview)
        if (slot.HasPicture()) preview::DrawPreview(slot.Tag(), slot);
}

}  // namespace vistrel::editor
