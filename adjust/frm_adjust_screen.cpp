// The screen in the window: shown at once while something changes, in its 256 colours when the hand
// rests, and dragged by mouse and keys.
#include "adjust/frm_adjust.h"
#include "pictures/preview/draw_preview.h"
#include "pictures/scale/resize.h"

namespace vistrel::adjust {
namespace {

/// Turns every fourth pixel of a line white and the two behind it black.
void DrawDots(pictures::RgbPicture& screen, int x, int y, int across, int down) {
    for (int i = 0; x < screen.width && y < screen.height; x += across, y += down, ++i) {
        std::uint8_t* pixel = &screen.pixels[(std::size_t(y) * screen.width + x) * 3];
        if (i % 4 == 0) pixel[0] = pixel[1] = pixel[2] = 255;
        if (i % 4 == 2) pixel[0] = pixel[1] = pixel[2] = 0;
    }
}

/// Where a dragged line of text stops by itself: the middle, and the margin that a tube hides.
void DrawGuides(pictures::RgbPicture& screen) {
    for (const int x : {kMarginAcross, screen.width / 2, screen.width - kMarginAcross})
        DrawDots(screen, x, 0, 0, 1);
    for (const int y : {kMarginDown, screen.height / 2, screen.height - kMarginDown})
        DrawDots(screen, 0, y, 1, 0);
}

}  // namespace

// The 256 colours take their time: they follow when nothing has changed for a moment.
void FrmAdjust::Changed() {
    ShowHint();
    ShowQuick();
    restTimer_.SetEnabled(true);
}

void FrmAdjust::ShowQuick() {
    pictures::RgbPicture screen = live_.Quick(composition_);
    if (draggingLine_) DrawGuides(screen);
    preview::DrawPicture(screen, ScreenBox);
}

void FrmAdjust::ShowFinished() {
    restTimer_.SetEnabled(false);
    finished_ = scale::Resize(live_.Finished(composition_), ScreenBox.ScaleWidth(),
                              ScreenBox.ScaleHeight());
    preview::DrawPicture(finished_, ScreenBox);
}

void FrmAdjust::ShowHeld(bool original) {
    if (original) {
        unfinished_ = restTimer_.Enabled();
        restTimer_.SetEnabled(false);
        preview::DrawPicture(scale::Resize(live_.Original(composition_), ScreenBox.ScaleWidth(),
                                           ScreenBox.ScaleHeight()),
                             ScreenBox);
    } else if (unfinished_) {
        ShowFinished();
    } else {
        preview::DrawPicture(finished_, ScreenBox);
    }
}

controls::Point FrmAdjust::ToScreen(controls::Point at) const {
    return {at.x * pictures::kLogoWidth / ScreenBox.ScaleWidth(),
            at.y * pictures::kLogoHeight / ScreenBox.ScaleHeight()};
}

void FrmAdjust::Screen_MouseDown(int button, controls::Point at) {
    ScreenBox.Focus();
    if (button != controls::kLeftButton) return;
    pressedAt_ = at;
    pressed_ = composition_.framing;
    draggingLine_ = false;
    if (CurrentPage() == kText) GrabLine(ToScreen(at));
}

void FrmAdjust::Screen_MouseMove(int button, controls::Point at) {
    if (button != controls::kLeftButton) {
        draggingLine_ = false;
        return;
    }
    if (draggingLine_) {
        const controls::Point to = ToScreen(at);
        DrawnLine& line = lines_[*SelectedLine()];
        line.MoveNear(to.x + grabbed_.x, to.y + grabbed_.y);
        LinesChanged();
    } else if (CurrentPage() == kFraming) {
        // From where the hand began, so that nothing is lost by rounding on the way.
        composition_.framing = pressed_;
        TakeFraming(compose::MovedBy(
            live_.TurnedSize(composition_), composition_,
            double(at.x - pressedAt_.x) * pictures::kLogoWidth / ScreenBox.ScaleWidth(),
            double(at.y - pressedAt_.y) * pictures::kLogoHeight / ScreenBox.ScaleHeight()));
    }
}

void FrmAdjust::TakeFraming(const compose::Framing& framing) {
    composition_.framing = framing;
    Changed();
}

void FrmAdjust::MoveByArrow(int across, int down) {
    if (CurrentPage() == kFraming)
        TakeFraming(compose::MovedBy(live_.TurnedSize(composition_), composition_, across, down));
    if (CurrentPage() != kText || !SelectedLine()) return;
    DrawnLine& line = lines_[*SelectedLine()];
    line.MoveTo(line.line().x + across, line.line().y + down);
    LinesChanged();
}

}  // namespace vistrel::adjust
