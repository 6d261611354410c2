// The mouse and the arrow keys on the screen: bars are dragged, areas chosen.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "animate/frm_animate.h"
#include "controls/screen_metrics.h"

namespace vistrel::animate {
namespace {

using pictures::kLogoHeight;
using pictures::kLogoWidth;
using screen::ScreenBounds;
using screen::ScreenPoint;

/// How near an edge a bar is taken at it.
constexpr int kGrip = 5;
constexpr int kSmallestBar = 4;
/// The places of "Freehand" and of the two ways by colour in their list.
constexpr int kFreehand = 1;
constexpr int kColor = 2;
constexpr int kOnePiece = 3;
/// Pixels by which the arrow keys move the cross; with Shift one.
constexpr int kCrossStep = 6;

screen::Area AreaOf(const ScreenBounds& bounds) {
    return screen::RectangleArea(bounds.left, bounds.top, bounds.right - bounds.left,
                                 bounds.bottom - bounds.top);
}

/// The rectangle with these two corners in it.
screen::Area Between(ScreenPoint a, ScreenPoint b) {
    return AreaOf(
        {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1});
}

/// Which edge of a bar is meant at this place of it.
int SideAt(int at, int first, int end) {
    if (at <= first + kGrip && end - first > 2 * kGrip) return -1;
    if (at >= end - kGrip) return 1;
    return 0;
}

/// One axis of a dragged bar: moved as a whole or by an edge, within the screen.
void DragEnds(int& first, int& end, int side, int by, int most) {
    if (side < 0) first = std::clamp(first + by, 0, end - kSmallestBar);
    if (side > 0) end = std::clamp(end + by, first + kSmallestBar, most);
    if (side != 0) return;
    by = std::clamp(by, -first, most - end);
    first += by;
    end += by;
}

}  // namespace

ScreenPoint FrmAnimate::ToScreen(controls::Point at) const {
    return {std::clamp(at.x * kLogoWidth / MovingBox.ScaleWidth(), 0, kLogoWidth - 1),
            std::clamp(at.y * kLogoHeight / MovingBox.ScaleHeight(), 0, kLogoHeight - 1)};
}

bool FrmAnimate::HasArea() const {
    const auto kind = SelectedKind();
    return kind == LayerKind::Shimmer || kind == LayerKind::Background;
}

bool FrmAnimate::ChoosesByColor() const { return ChooseBy.ListIndex() >= kColor; }

bool FrmAnimate::ChoosesFreehand() const { return ChooseBy.ListIndex() == kFreehand; }

// By keys a colour is picked, and a line drawn, where the cross is.
bool FrmAnimate::HasCross() const { return HasArea() && (ChoosesFreehand() || ChoosesByColor()); }

void FrmAnimate::Screen_MouseDown(int button, controls::Point at) {
    MovingBox.Focus();
    if (button != controls::kLeftButton) return;
    pressed_ = true;
    if (CurrentPage() != kMoves) return;
    EndDrag();
    lastHand_ = kNobody;
    pressedAt_ = ToScreen(at);
    if (HasArea())
        BeginArea(pressedAt_, MovingBox.PressedWithShift(), MovingBox.PressedWithControl());
    else if (GrabBar(pressedAt_))
        drag_ = Drag::Bar;
}

void FrmAnimate::Screen_MouseMove(int button, controls::Point at) {
    if (drag_ == Drag::LineByKeys) return;
    if (button != controls::kLeftButton) {
        pressed_ = false;
        EndDrag();
        return;
    }
    const ScreenPoint to = ToScreen(at);
    if (drag_ == Drag::Bar) DragBar(to);
    if (drag_ == Drag::Area && !(to == pressedAt_ && line_.size() < 2)) DragArea(to);
}

void FrmAnimate::Screen_MouseUp() {
    // Without a press it is the space bar's.
    const bool byMouse = std::exchange(pressed_, false);
    if (byMouse || drag_ == Drag::LineByKeys)
        EndDrag();
    else if (CurrentPage() == kMoves && HasCross())
        Screen_Space();
}

void FrmAnimate::Screen_Space() {
    lastHand_ = kNobody;
    BeginArea(cross_, controls::IsShiftDown(), controls::IsControlDown());
    drag_ = ChoosesFreehand() ? Drag::LineByKeys : Drag::None;
    LblMovingHint.SetText(Hint());
}

void FrmAnimate::EndDrag() {
    if (drag_ == Drag::None) return;
    drag_ = Drag::None;
    line_.clear();
    LblMovingHint.SetText(Hint());
    ShowMarked();
}

bool FrmAnimate::GiveUpLine() {
    if (drag_ != Drag::LineByKeys) return false;
    const bool changed = !(Selected()->area == pressedArea_);
    EndDrag();
    if (changed) GoBack(true);
    return true;
}

bool FrmAnimate::GrabBar(ScreenPoint at) {
    const auto& layers = document_.picture.layers;
    for (std::size_t i = layers.size(); i-- > 0;) {
        const ScreenBounds bounds = screen::BoundsOf(layers[i].area);
        if (KindOf(layers[i].pattern) != LayerKind::Bar || at.x < bounds.left ||
            at.x >= bounds.right || at.y < bounds.top - kGrip || at.y >= bounds.bottom + kGrip)
            continue;
        document_.selected = i;
        pressedBounds_ = bounds;
        side_[0] = SideAt(at.x, bounds.left, bounds.right);
        side_[1] = SideAt(at.y, bounds.top, bounds.bottom);
        ShowLayers();
        return true;
    }
    return false;
}

void FrmAnimate::DragBar(ScreenPoint at) {
    ScreenBounds bounds = pressedBounds_;
    const bool whole = side_[0] == 0 && side_[1] == 0;
    if (whole || side_[0] != 0)
        DragEnds(bounds.left, bounds.right, side_[0], at.x - pressedAt_.x, kLogoWidth);
    if (whole || side_[1] != 0)
        DragEnds(bounds.top, bounds.bottom, side_[1], at.y - pressedAt_.y, kLogoHeight);
    ChangeArea(&MovingBox, AreaOf(bounds));
}

void FrmAnimate::BeginArea(ScreenPoint at, bool shift, bool control) {
    drag_ = Drag::Area;
    pressedArea_ = Selected()->area;
    joining_ = shift ? Joining::Add : control ? Joining::Remove : Joining::Replace;
    line_.clear();
    if (ChoosesFreehand()) line_.push_back(at);
    if (ChoosesByColor()) PickColor(at);
}

void FrmAnimate::DragArea(ScreenPoint at) {
    if (ChoosesByColor()) return;
    if (!ChoosesFreehand()) {
        ChangeArea(&MovingBox, Combined(Between(pressedAt_, at)));
        return;
    }
    if (line_.back() == at) return;
    cross_ = at;
    line_.push_back(at);
    ChangeArea(&MovingBox, Combined(screen::LassoArea(line_)));
}

void FrmAnimate::PickColor(ScreenPoint at) {
    picked_ = cross_ = at;
    ChangeArea(&MovingBox, Combined(screen::LikeColorArea(screen::StillPicture(document_.picture),
                                                          at, ToleranceBar.Value(),
                                                          ChooseBy.ListIndex() == kOnePiece)));
}

// What was picked last is picked anew.
void FrmAnimate::ToleranceBar_Change() {
    if (!picked_ || !HasArea()) return;
    ChangeArea(&ToleranceBar, Combined(screen::LikeColorArea(
                                  screen::StillPicture(document_.picture), *picked_,
                                  ToleranceBar.Value(), ChooseBy.ListIndex() == kOnePiece)));
}

screen::Area FrmAnimate::Combined(screen::Area chosen) const {
    if (joining_ == Joining::Replace) return chosen;
    screen::Area area = pressedArea_;
    if (joining_ == Joining::Add)
        screen::Add(area, chosen);
    else
        screen::Remove(area, chosen);
    return area;
}

bool FrmAnimate::ArrowKey(int across, int down) {
    if (CurrentPage() == kByHand && BoardBox.HasFocus()) {
        MoveOnBoard(across + 16 * down);
        return true;
    }
    if (!MovingBox.HasFocus()) return false;
    if (CurrentPage() != kMoves || !Selected()) return true;
    if (HasCross()) {
        MoveCross(across, down);
    } else if (controls::IsShiftDown()) {
        ResizeArea(across, down);
    } else {
        MoveArea(across, down);
    }
    return true;
}

void FrmAnimate::MoveCross(int across, int down) {
    const int step = controls::IsShiftDown() ? 1 : kCrossStep;
    cross_ = {std::clamp(cross_.x + step * across, 0, kLogoWidth - 1),
              std::clamp(cross_.y + step * down, 0, kLogoHeight - 1)};
    picked_.reset();
    if (drag_ == Drag::LineByKeys) DragArea(cross_);
    ShowMarked();
}

void FrmAnimate::MoveArea(int across, int down) {
    if (SelectedKind() == LayerKind::Screen) return;
    ScreenBounds bounds = screen::BoundsOf(Selected()->area);
    if (bounds.IsEmpty()) return;
    const bool fits = bounds.left + across >= 0 && bounds.right + across <= kLogoWidth &&
                      bounds.top + down >= 0 && bounds.bottom + down <= kLogoHeight;
    if (fits) ChangeArea(&MovingBox, Shifted(Selected()->area, across, down));
}

// Of a rectangle only: what another shape would become nobody could guess.
void FrmAnimate::ResizeArea(int across, int down) {
    if (SelectedKind() == LayerKind::Screen) return;
    ScreenBounds bounds = screen::BoundsOf(Selected()->area);
    if (bounds.IsEmpty() || !(AreaOf(bounds) == Selected()->area)) return;
    if (across != 0) DragEnds(bounds.left, bounds.right, 1, across, kLogoWidth);
    if (down != 0) DragEnds(bounds.top, bounds.bottom, 1, down, kLogoHeight);
    ChangeArea(&MovingBox, AreaOf(bounds));
}

}  // namespace vistrel::animate
