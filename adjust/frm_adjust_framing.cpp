// The page on what of the picture comes onto the screen.
#include <algorithm>
#include <cmath>

#include "adjust/color_number.h"
#include "adjust/frm_adjust.h"
#include "help/context_numbers.h"
#include "platform/look_dialogs.h"
#include "resources/ids.h"

namespace vistrel::adjust {
namespace {

// The slider doubles the picture every so many of its steps.
constexpr int kStepsToDouble = 24;
constexpr int kZoomSteps = 4 * kStepsToDouble;
constexpr int kStepsOfKey = 3;
constexpr int kNotch = 120;

int ZoomOf(int steps) {
    return static_cast<int>(
        std::lround(compose::kZoomOne * std::exp2(double(steps) / kStepsToDouble)));
}

int StepsOf(int zoom) {
    return static_cast<int>(
        std::lround(kStepsToDouble * std::log2(double(zoom) / compose::kZoomOne)));
}

}  // namespace

void FrmAdjust::AddFraming() {
    namespace number = help_number;
    const controls::Part parts[] = {
        {OptFraming[0], ID_OptFraming, number::OptFraming[0],
         "All of the picture over all of the screen: shapes change"},
        {OptFraming[1], ID_OptFraming + 1, number::OptFraming[1],
         "As much of the picture as fills the screen: shapes stay"},
        {OptFraming[2], ID_OptFraming + 2, number::OptFraming[2],
         "All of the picture, with a border: shapes stay"},
        {LblZoom, ID_LblZoom, number::ZoomBar},
        {LblZoomValue, ID_LblZoomValue, number::ZoomBar},
        {ZoomBar, ID_ZoomBar, number::ZoomBar, "How large the picture is"},
        {LblBorder, ID_LblBorder, number::BorderKind},
        {BorderKind, ID_BorderKind, number::BorderKind, "What is seen beside the picture"},
        {BorderSwatch, ID_BorderSwatch, number::BorderKind},
        {BtnBorderColor, ID_BtnBorderColor, number::BorderKind, "Chooses the colour of the border"},
        {BtnTurnLeft, ID_BtnTurnLeft, number::BtnTurn, "Turns the picture to the left"},
        {BtnTurnRight, ID_BtnTurnRight, number::BtnTurn, "Turns the picture to the right"},
        {ChkMirror, ID_ChkMirror, number::ChkMirror,
         "Changes the left and the right of the picture"},
    };
    AddPage(kFraming, parts);
    for (int i = 0; i < 3; ++i)
        OptFraming[i].Click = [this, i] { OptFraming_Click(static_cast<compose::FramingKind>(i)); };
    ZoomBar.Change = [this] { ZoomBar_Change(); };
    BorderKind.Click = [this] { BorderKind_Click(); };
    BtnBorderColor.Click = [this] { BtnBorderColor_Click(); };
    BtnTurnLeft.Click = [this] { Turn(-1); };
    BtnTurnRight.Click = [this] { Turn(1); };
    ChkMirror.Click = [this] { ChkMirror_Click(); };
}

void FrmAdjust::OptFraming_Click(compose::FramingKind kind) {
    composition_.framing.kind = kind;
    ShowPossible();
    Changed();
}

void FrmAdjust::ShowZoom() {
    const int zoom = composition_.framing.zoom;
    ZoomBar.SetRange(0, kZoomSteps, 1, kStepsToDouble / 4, 0);
    ZoomBar.SetValue(StepsOf(zoom));
    LblZoomValue.SetText(std::to_string(zoom * 100 / compose::kZoomOne) + "%");
    const compose::Color& color = composition_.framing.borderColor;
    BorderSwatch.SetForeColor(0);
    BorderSwatch.SetBackColor(NumberOf(color));
}

void FrmAdjust::ZoomBar_Change() {
    const int steps = ZoomBar.Value() - StepsOf(composition_.framing.zoom);
    if (steps != 0) Zoom(steps, {pictures::kLogoWidth / 2, pictures::kLogoHeight / 2});
}

// What is at a point of the screen stays there.
void FrmAdjust::Zoom(int steps, controls::Point at) {
    const int now = std::clamp(StepsOf(composition_.framing.zoom) + steps, 0, kZoomSteps);
    TakeFraming(
        compose::ZoomedAt(live_.TurnedSize(composition_), composition_, ZoomOf(now), at.x, at.y));
    ShowZoom();
}

void FrmAdjust::Form_KeyPress(char character) {
    if (CurrentPage() != kFraming || composition_.framing.kind != compose::FramingKind::Fill)
        return;
    if (character == '+') Zoom(kStepsOfKey, {pictures::kLogoWidth / 2, pictures::kLogoHeight / 2});
    if (character == '-') Zoom(-kStepsOfKey, {pictures::kLogoWidth / 2, pictures::kLogoHeight / 2});
}

bool FrmAdjust::Form_MouseWheel(int turned, controls::Point screen) {
    if (CurrentPage() != kFraming || composition_.framing.kind != compose::FramingKind::Fill ||
        ControlAt(screen) != &ScreenBox)
        return false;
    const controls::Point corner = ScreenBox.OnScreen({0, 0});
    Zoom(turned * kStepsOfKey / kNotch, ToScreen({screen.x - corner.x, screen.y - corner.y}));
    return true;
}

void FrmAdjust::BorderKind_Click() {
    composition_.framing.border = static_cast<compose::Border>(BorderKind.ListIndex());
    ShowPossible();
    Changed();
}

void FrmAdjust::BtnBorderColor_Click() {
    compose::Color& color = composition_.framing.borderColor;
    const auto chosen = platform::PickColor(handle(), NumberOf(color));
    if (!chosen) return;
    color = ColorOf(*chosen);
    ShowZoom();
    Changed();
}

// The turn is told before the mirroring, and so goes the other way round for who sees a mirrored
// picture. What was in the middle of the screen stays there.
void FrmAdjust::Turn(int quarters) {
    composition_.orientation.quarterTurns +=
        composition_.orientation.mirrored ? -quarters : quarters;
    compose::Framing& framing = composition_.framing;
    const int x = framing.centreX;
    const int y = framing.centreY;
    framing.centreX = quarters > 0 ? compose::kWhole - y : y;
    framing.centreY = quarters > 0 ? x : compose::kWhole - x;
    Changed();
}

void FrmAdjust::ChkMirror_Click() {
    composition_.orientation.mirrored = ChkMirror.Value() != 0;
    composition_.framing.centreX = compose::kWhole - composition_.framing.centreX;
    Changed();
}

}  // namespace vistrel::adjust
