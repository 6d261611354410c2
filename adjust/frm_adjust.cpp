// The window: its controls and pages, and how it is closed.
#include "adjust/frm_adjust.h"

#include <algorithm>
#include <utility>

#include "controls/grow_picture.h"
#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "pictures/preview/draw_letters.h"
#include "platform/message_box.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::adjust {
namespace {

/// A hand that did not move for so many milliseconds rests.
constexpr unsigned kRest = 300;

}  // namespace

FrmAdjust::FrmAdjust(const Adjustment& start, NewFile newFile)
    : Window("FrmAdjust", IDD_FrmAdjust),
      source_(start.source),
      newFile_(std::move(newFile)),
      composition_(start.composition),
      restTimer_(kRest),
      readyMade_(controls::NewPopUpMenu()) {
    for (const TextLine& line : start.lines) lines_.emplace_back(line);
    composition_.text = MasksOf(lines_);
    AddFrame();
    AddFraming();
    AddLight();
    AddText();
    Add(restTimer_);
    restTimer_.Tick = [this] { ShowFinished(); };
}

FrmAdjust::~FrmAdjust() = default;

void FrmAdjust::AddPage(Page page, std::span<const controls::Part> parts) {
    AddParts(parts);
    for (const controls::Part& part : parts) pages_[page].push_back(&part.control);
}

void FrmAdjust::AddFrame() {
    namespace number = help_number;
    const controls::Part parts[] = {
        // A tip would lie over the picture; the hint below says what can be done with it.
        {ScreenBox, ID_ScreenBox, number::ScreenBox},
        {BtnOriginal, ID_BtnOriginal, number::BtnOriginal,
         "Shows the picture as it was, while you hold this down"},
        {LblHint, ID_LblHint},
        {AdjustPages, ID_AdjustPages},
        {BtnOK, ID_BtnOK, number::AdjustOk, "Makes the screen"},
        {BtnCancel, ID_BtnCancel, number::AdjustCancel, "Leaves all as it was"},
    };
    AddPage(kAlways, parts);
    ScreenBox.MouseDown = [this](int button, controls::Point at) { Screen_MouseDown(button, at); };
    ScreenBox.MouseMove = [this](int button, controls::Point at) { Screen_MouseMove(button, at); };
    // With this the box keeps the mouse while it is dragged beyond the edge.
    ScreenBox.MouseUp = [](int, controls::Point) {};
    BtnOriginal.Held = [this](bool down) { ShowHeld(down); };
    AdjustPages.Click = [this] { ShowPage(); };
    BtnOK.Click = [this] { BtnOK_Click(); };
    BtnCancel.Click = [this] { Unload(); };
}

bool FrmAdjust::ReadPicture() {
    const platform::BusyPointer busy;
    return live_.Read(source_);
}

Adjustment FrmAdjust::Settings() const {
    Adjustment settings{source_, composition_, {}};
    settings.composition.text.clear();
    for (const DrawnLine& line : lines_) settings.lines.push_back(line.line());
    return settings;
}

void FrmAdjust::Form_Load() {
    for (const char* caption : {"Framing", "Light", "Text"}) AdjustPages.AddTab(caption);
    AdjustPages.Select(kFraming);
    FillLists();
    controls::GrowPicture(*this, ScreenBox, AdjustPages, LblHint);
    ScreenBox.SetTag(source_);
    ShowSettings();
    ShowPage();
    ShowFinished();
}

void FrmAdjust::FillLists() {
    for (const char* kind : {"One colour", "The picture's edge, blurred"}) BorderKind.AddItem(kind);
    for (const char* kind : {"Automatic", "None", "Light", "Medium", "Strong"})
        DitherKind.AddItem(kind);
    for (const char* kind : {"None", "Outline", "Shadow"}) EdgeKind.AddItem(kind);
    for (const char* kind : {"Left", "Centre", "Right"}) AlignKind.AddItem(kind);
    TextLines.AddColumn("", 0);
    TextLines.FitColumn();
    for (const DrawnLine& line : lines_) TextLines.AddItem(line.line().text, "");
    if (!lines_.empty()) TextLines.Select(0);
}

void FrmAdjust::ShowSettings() {
    const compose::Framing& framing = composition_.framing;
    for (int i = 0; i < 3; ++i) OptFraming[i].SetMark(i == static_cast<int>(framing.kind));
    BorderKind.SetListIndex(static_cast<int>(framing.border));
    ChkMirror.SetValue(composition_.orientation.mirrored);
    ShowZoom();
    ShowLight();
    ShowLine();
}

void FrmAdjust::Form_Activate() {
    if (fontsTold_) return;
    fontsTold_ = true;
    ScreenBox.Focus();
    TellMissingFonts();
}

void FrmAdjust::TellMissingFonts() {
    std::vector<std::string> missing;
    for (const DrawnLine& line : lines_) {
        const std::string& face = line.line().font.face;
        if (preview::FaceFor(face) != face && std::count(missing.begin(), missing.end(), face) == 0)
            missing.push_back(face);
    }
    for (const std::string& face : missing)
        platform::Tell(handle(),
                       "The font " + face + " is not there any more. Another one stands for it.");
}

void FrmAdjust::ShowPage() {
    bool focusGoes = false;
    for (int page = kFraming; page <= kText; ++page) {
        for (controls::Control* control : pages_[page]) {
            focusGoes |= page != CurrentPage() && control->HasFocus();
            control->SetVisible(page == CurrentPage());
        }
    }
    ShowPossible();
    if (focusGoes) AdjustPages.Focus();
}

void FrmAdjust::ShowPossible() {
    // What is hidden is disabled too: its access key would still act.
    for (int page = kFraming; page <= kText; ++page)
        for (controls::Control* control : pages_[page])
            control->SetEnabled(page == CurrentPage() && IsPossible(*control));
    ScreenBox.SetMovable(CurrentPage() == kText
                             ? !lines_.empty()
                             : CurrentPage() == kFraming &&
                                   composition_.framing.kind == compose::FramingKind::Fill);
    ShowHint();
}

// While something is dragged it is not to flicker.
void FrmAdjust::ShowHint() {
    if (const std::string hint = Hint(); hint != LblHint.Text()) LblHint.SetText(hint);
}

bool FrmAdjust::IsPossible(const controls::Control& control) const {
    const compose::Framing& framing = composition_.framing;
    const auto isOneOf = [&](std::initializer_list<const controls::Control*> some) {
        return std::find(some.begin(), some.end(), &control) != some.end();
    };
    if (isOneOf({&LblZoom, &LblZoomValue, &ZoomBar}))
        return framing.kind == compose::FramingKind::Fill;
    if (isOneOf({&LblBorder, &BorderKind})) return framing.kind == compose::FramingKind::Fit;
    if (isOneOf({&BtnBorderColor, &BorderSwatch}))
        return framing.kind == compose::FramingKind::Fit &&
               framing.border == compose::Border::Plain;
    if (isOneOf({&BtnEditLine, &BtnDeleteLine, &BtnFont, &BtnTextColor, &TextSwatch, &LblEdge,
                 &EdgeKind, &LblAlign, &AlignKind}))
        return SelectedLine().has_value();
    return true;
}

std::string FrmAdjust::Hint() const {
    switch (live_.MovementOf(composition_)) {
        case LiveScreen::Movement::Kept:
            return lines_.empty() ? "The colours of this screen go on moving."
                                  : "The colours go on moving, but not under the text.";
        case LiveScreen::Movement::LostByFraming:
            return "Turned or framed like this, the colours stand still.";
        case LiveScreen::Movement::LacksColors:
            return "Too many of its colours move: they will stand still.";
        default:
            return PageHint();
    }
}

std::string FrmAdjust::PageHint() const {
    if (CurrentPage() == kLight) return "A double click sets a slider back.";
    if (CurrentPage() == kText)
        return lines_.empty() ? "Add a line, then drag it to its place on the screen."
                              : "Drag a line to its place on the screen, or use the arrow keys.";
    switch (composition_.framing.kind) {
        case compose::FramingKind::Fill:
            return "Drag the picture, or use the arrow keys, + and -.";
        case compose::FramingKind::Fit:
            return "All of the picture, in its own shape.";
        default:
            return "All of the picture, in the shape of the screen.";
    }
}

bool FrmAdjust::Form_KeyDown(int key) {
    if (AdjustPages.TurnPage(key)) return true;
    if (!ScreenBox.HasFocus()) return false;
    if (key == controls::kKeyLeft) MoveByArrow(-1, 0);
    if (key == controls::kKeyRight) MoveByArrow(1, 0);
    if (key == controls::kKeyUp) MoveByArrow(0, -1);
    if (key == controls::kKeyDown) MoveByArrow(0, 1);
    return key >= controls::kKeyLeft && key <= controls::kKeyDown;
}

bool FrmAdjust::IsPictureAsItWas() {
    const auto checksum = compose::ChecksumOfPicture(source_);
    if (!checksum) {
        platform::Tell(
            handle(),
            source_ + " cannot be read any more. When it is back in its place, press OK again.");
        return false;
    }
    if (*checksum == live_.Checksum()) return true;
    if (ReadPicture()) ShowFinished();
    platform::Tell(handle(),
                   source_ + " has changed. Look whether it is still framed as you like.");
    return false;
}

void FrmAdjust::BtnOK_Click() {
    if (!IsPictureAsItWas()) return;
    const std::string file = newFile_();
    auto result = pictures::ConversionResult::NotWritten;
    if (!file.empty()) {
        const platform::BusyPointer busy;
        result = compose::MakeScreen(source_, file, composition_);
    }
    if (result == pictures::ConversionResult::Written) {
        screen_ = file;
        Unload();
        return;
    }
    platform::Tell(handle(),
                   result == pictures::ConversionResult::NotWritten
                       ? "The screen cannot be written. The disk of temporary files may be full."
                       : "The screen cannot be made. There may not be enough memory.");
}

}  // namespace vistrel::adjust
