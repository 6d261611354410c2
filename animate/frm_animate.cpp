// The window: its controls and pages, and how it is closed.
#include "animate/frm_animate.h"

#include <algorithm>
#include <utility>

#include "controls/grow_picture.h"
#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "platform/message_box.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::animate {
namespace {

/// A hand that did not move for so many milliseconds rests.
constexpr unsigned kRest = 300;

}  // namespace

FrmAnimate::FrmAnimate(Document start, std::string screens, Keep keep)
    : Window("FrmAnimate", IDD_FrmAnimate),
      document_(std::move(start)),
      screens_(std::move(screens)),
      keep_(std::move(keep)),
      stepTimer_(preview::kAnimationInterval),
      restTimer_(kRest),
      addMenu_(controls::NewPopUpMenu()) {
    AddFrame();
    AddMoves();
    AddColors();
    AddByHand();
    Add(stepTimer_);
    Add(restTimer_);
    stepTimer_.Tick = [this] { view_.Step(); };
    restTimer_.Tick = [this] { ShowFinished(); };
}

FrmAnimate::~FrmAnimate() = default;

void FrmAnimate::AddPage(Page page, std::span<const controls::Part> parts) {
    AddParts(parts);
    for (const controls::Part& part : parts) pages_[page].push_back(&part.control);
}

void FrmAnimate::AddFrame() {
    namespace number = help_number;
    const controls::Part parts[] = {
        // A tip would lie over the picture; the hint below says what can be done with it.
        {MovingBox, ID_MovingBox, number::MovingBox},
        {BtnUndo, ID_BtnUndo, number::BtnUndo, "Takes the last change back (Ctrl+Z)"},
        {BtnRedo, ID_BtnRedo, number::BtnUndo, "Makes the change again (Ctrl+Y)"},
        {LblMovingHint, ID_LblMovingHint},
        {MovingPages, ID_MovingPages},
        {BtnOK, ID_BtnOK, number::MovingOk, "Keeps the screen as it moves here"},
        {BtnCancel, ID_BtnCancel, number::MovingCancel, "Leaves all as it was"},
    };
    AddPage(kAlways, parts);
    MovingBox.MouseDown = [this](int button, controls::Point at) { Screen_MouseDown(button, at); };
    MovingBox.MouseMove = [this](int button, controls::Point at) { Screen_MouseMove(button, at); };
    MovingBox.MouseUp = [this](int button, controls::Point) {
        if (button == controls::kLeftButton) Screen_MouseUp();
    };
    // The cross is there for the keys.
    MovingBox.GotFocus = [this] { ShowMarked(); };
    BtnUndo.Click = [this] { GoBack(true); };
    BtnRedo.Click = [this] { GoBack(false); };
    MovingPages.Click = [this] { ShowPage(); };
    BtnOK.Click = [this] { BtnOK_Click(); };
    BtnCancel.Click = [this] { Unload(); };
}

void FrmAnimate::Form_Load() {
    for (const char* caption : {"What moves", "Colours", "By hand"}) MovingPages.AddTab(caption);
    MovingPages.Select(kMoves);
    controls::GrowPicture(*this, MovingBox, MovingPages, LblMovingHint);
    // The box is one that shows a picture: keys go there too.
    MovingBox.Canvas();
    MovingBox.Keep();
    // The moving screen needs all of the display's colours that there are.
    RingBox.LeaveColors();
    BoardBox.LeaveColors();
    FillLists();
    ShowPage();
    ShowDocument();
    ShowFinished();
    stepTimer_.SetEnabled(true);
}

void FrmAnimate::FillLists() {
    for (const char* way : {"Rectangle", "Freehand", "Colour", "Colour, joined"})
        ChooseBy.AddItem(way);
    ChooseBy.SetListIndex(0);
    ToleranceBar.SetRange(0, 100, 1, 10, 20);
    Layers.AddColumn("", 0);
    Layers.FitColumn();
}

void FrmAnimate::ShowPage() {
    bool focusGoes = false;
    for (int page = kMoves; page <= kByHand; ++page) {
        for (controls::Control* control : pages_[page]) {
            focusGoes |= page != CurrentPage() && control->HasFocus();
            control->SetVisible(page == CurrentPage());
        }
    }
    EndDrag();
    ShowPossible();
    if (CurrentPage() == kByHand) ShowBoard();
    ShowMarked();
    if (focusGoes) MovingPages.Focus();
}

void FrmAnimate::ShowDocument() {
    ShowLayers();
    ShowColors();
    ShowPossible();
}

void FrmAnimate::ShowPossible() {
    // What is hidden is disabled too: its access key would still act.
    for (int page = kMoves; page <= kByHand; ++page)
        for (controls::Control* control : pages_[page])
            control->SetEnabled(page == CurrentPage() && IsPossible(*control));
    // A button that goes grey would keep the keys for nobody.
    for (auto [button, possible] :
         {std::pair{&BtnUndo, history_.CanUndo()}, std::pair{&BtnRedo, history_.CanRedo()}}) {
        if (!possible && button->HasFocus()) MovingBox.Focus();
        button->SetEnabled(possible);
    }
    MovingBox.SetMovable(CurrentPage() == kMoves && SelectedKind() == LayerKind::Bar);
    LblMovingHint.SetText(Hint());
}

bool FrmAnimate::IsPossible(const controls::Control& control) const {
    const auto isOneOf = [&](std::initializer_list<const controls::Control*> some) {
        return std::find(some.begin(), some.end(), &control) != some.end();
    };
    const screen::Ring& ring = document_.picture.ring;
    const std::size_t keys = ring.exact.empty() ? ring.keys.size() : 0;
    for (std::size_t i = 0; i < std::size(BtnKey); ++i)
        if (isOneOf({&BtnKey[i], &KeySwatch[i]})) return i < keys;
    if (isOneOf({&BtnMoreKeys})) return keys > 0 && keys < std::size(BtnKey);
    if (isOneOf({&BtnFewerKeys})) return keys > 2;
    if (isOneOf({&LblCount, &LblCountValue, &CountBar})) return keys > 0 || document_.areaColors;
    if (isOneOf({&BtnGround, &GroundSwatch})) return document_.picture.ground.has_value();
    if (isOneOf({&BtnExchange})) return entry_ != further_;
    if (isOneOf({&BtnStill})) return shown_.IsAnimated();
    return IsOfSelected(control);
}

std::string FrmAnimate::Hint() const {
    if (CurrentPage() == kColors) return "All that moves shares these colours and their number.";
    if (CurrentPage() == kByHand) return "Click a colour; Shift and a click marks several.";
    const auto kind = SelectedKind();
    if (!kind) return "Add what is to move: a bar, a shimmer, a background.";
    if (*kind == LayerKind::Bar)
        return "Drag the bar or its edges, or use the arrow keys, also with Shift.";
    if (*kind == LayerKind::Screen) return "This moves as it does on the screen that it is from.";
    if (ChoosesByColor())
        return "Click a colour of the picture. Shift adds to the area, Ctrl takes away.";
    if (drag_ == Drag::LineByKeys)
        return "The arrow keys draw, with Shift finely. Space ends the line, Esc gives it up.";
    if (ChoosesFreehand())
        return "Draw round it; by keys from Space to Space. Shift adds, Ctrl takes away.";
    return "Drag over the picture. Shift adds to the area, Ctrl takes away.";
}

bool FrmAnimate::Form_KeyDown(int key) {
    if (MovingPages.TurnPage(key)) return true;
    if (controls::IsControlDown() && (key == controls::kKeyZ || key == controls::kKeyY)) {
        GoBack(key == controls::kKeyZ);
        return true;
    }
    if (key == controls::kKeyEscape && GiveUpLine()) return true;
    if (key == controls::kKeyLeft) return ArrowKey(-1, 0);
    if (key == controls::kKeyRight) return ArrowKey(1, 0);
    if (key == controls::kKeyUp) return ArrowKey(0, -1);
    if (key == controls::kKeyDown) return ArrowKey(0, 1);
    return false;
}

void FrmAnimate::BtnOK_Click() {
    std::optional<screen::IndexedScreen> made;
    {
        const platform::BusyPointer busy;
        made = live_.Finished(document_);
    }
    if (!made) {
        platform::Tell(handle(), "The screen cannot be made. There may not be enough memory.");
        return;
    }
    if (keep_(handle(), screen::ScreenFile(*made))) Unload();
}

}  // namespace vistrel::animate
