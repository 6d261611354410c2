// The status line: what the program is doing, of which sets the installed screens are, and how many
// sets there are and are selected.
#include <cmath>

#include "main_window/principale.h"
#include "platform/clock.h"

namespace vistrel::main_window {
namespace {

/// Sets are compared for so long before the user's clicks get their turn.
constexpr double kSecondsOfComparing = 0.03;
constexpr double kSecondsWithoutCancel = 1;

/// A text in a frame, clear of its edges.
void Place(controls::Label& text, controls::Label& frame, const controls::Rect& place) {
    const int beside = 4;
    frame.MoveTo(place);
    text.MoveTo({place.left + beside, place.top + 1, place.width - 2 * beside, place.height - 2});
}

std::string CountsInWords(std::size_t shown, std::size_t all, std::size_t selected) {
    std::string text = std::to_string(all) + (all == 1 ? " set" : " sets");
    if (shown != all) text = std::to_string(shown) + " of " + text;
    return selected == 0 ? text : text + ", " + std::to_string(selected) + " selected";
}

std::string LookingInWords(const std::optional<core::InstalledOrigin>& origin) {
    const std::size_t percent = origin ? origin->Compared() * 100 / origin->Count() : 0;
    return "Comparing sets with the installed screens: " + std::to_string(percent) + " %";
}

}  // namespace

Principale::Doing::Doing(Principale& window, const std::string& what, const char* afterCancel)
    : window_(window), progress_(window.handle(), what, afterCancel) {
    window_.LblDoing.SetText(what);
}

Principale::Doing::~Doing() { window_.ShowStatus(); }

// At the foot of the window; what is above is left for all else. The corner is free: who wants to
// size the window takes hold of it there.
int Principale::PlaceStatusLine(controls::Size client) {
    const int between = 2;
    const int height = DoingFrame.Bounds().height;
    const int counts = SelectedFrame.Bounds().width;
    const int cancel = BtnStopLooking.Bounds().width;
    const int top = client.height - height - between;
    const int left = client.width - height - counts;
    const int doing = left - 2 * between - (BtnStopLooking.Visible() ? cancel + between : 0);
    Place(LblDoing, DoingFrame, {between, top, doing, height});
    BtnStopLooking.MoveTo({left - between - cancel, top, cancel, height});
    Place(LblSelected, SelectedFrame, {left, top, counts, height});
    return top;
}

void Principale::ShowCounts() {
    LblSelected.SetText(CountsInWords(static_cast<std::size_t>(MyList.Count()), sets_.size(),
                                      static_cast<std::size_t>(MyList.SelectedCount())));
}

// While the label names a set nobody has asked, and no set is read.
void Principale::LookForInstalledSet() {
    origin_.reset();
    lookingSince_ = platform::SecondsSinceMidnight();
    compareTimer_.SetEnabled(savedView_ || !InstalledSet());
    ShowStatus();
}

// What was found, or would have been, may be another set's now, or bear another name.
void Principale::LookAgain() {
    if (origin_ || compareTimer_.Enabled()) LookForInstalledSet();
}

void Principale::CompareTimer_Timer() {
    if (!origin_) origin_.emplace(Targets(), sets_);
    compareTimer_.SetEnabled(origin_->CompareFor(kSecondsOfComparing));
    ShowStatus();
}

void Principale::BtnStopLooking_Click() {
    compareTimer_.SetEnabled(false);
    origin_.reset();
    MyList.Focus();
    ShowStatus();
}

void Principale::ShowStatus() {
    const bool isLooking = compareTimer_.Enabled();
    const std::string found = origin_ && !isLooking ? origin_->Sentence() : "";
    const std::string text = isLooking ? LookingInWords(origin_) : found;
    // Written anew it would flicker.
    if (text != LblDoing.Text()) LblDoing.SetText(text);
    LblDoing.SetTip(found);
    ShowBtnStopLooking(isLooking && std::abs(platform::SecondsSinceMidnight() - lookingSince_) >
                                        kSecondsWithoutCancel);
    if (!savedView_)
        DefaultLogo.SetTip(found.empty() ? "Default logo set" : "Default logo set\r\n" + found);
}

void Principale::ShowBtnStopLooking(bool shown) {
    if (shown == BtnStopLooking.Visible()) return;
    if (BtnStopLooking.HasFocus()) MyList.Focus();
    BtnStopLooking.SetVisible(shown);
    PlaceStatusLine(ClientSize());
}

}  // namespace vistrel::main_window
