// The page on the 256 colours, each of them seen and changed by hand.
#include <algorithm>

#include "animate/color_number.h"
#include "animate/frm_animate.h"
#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "pictures/preview/draw_preview.h"
#include "pictures/screen/board.h"
#include "platform/look_dialogs.h"
#include "resources/ids.h"

namespace vistrel::animate {
namespace {

constexpr int kAcross = 16;
constexpr int kEntries = 256;
/// Pixels between the colours, in which marks are drawn.
constexpr int kGap = 2;

using pictures::RgbPicture;

void Fill(RgbPicture& board, int left, int top, int right, int bottom,
          const screen::ScreenColor& color) {
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            std::copy(color.begin(), color.end(),
                      board.pixels.begin() + (std::ptrdiff_t{y} * board.width + x) * 3);
}

/// The board with a light frame around what is marked and a dark gap around all else; what moves
/// has a yellow corner.
RgbPicture BoardOf(const screen::IndexedScreen& screen, int width, int height, int from, int to) {
    constexpr screen::ScreenColor kGround{64, 64, 64}, kMark{255, 255, 255}, kMoves{255, 255, 0};
    RgbPicture board{width, height, {}};
    board.pixels.resize(std::size_t{3} * static_cast<std::size_t>(width) * height);
    for (int i = 0; i < kEntries; ++i) {
        const int left = i % kAcross * width / kAcross;
        const int right = (i % kAcross + 1) * width / kAcross;
        const int top = i / kAcross * height / kAcross;
        const int bottom = (i / kAcross + 1) * height / kAcross;
        const bool marked = i >= from && i <= to;
        Fill(board, left, top, right, bottom, marked ? kMark : kGround);
        const int gap = marked ? kGap : 1;
        Fill(board, left + gap, top + gap, right - gap, bottom - gap, screen.palette[i]);
        if (screen.IsAnimated() && i >= screen.firstAnimated)
            Fill(board, right - gap - 2, bottom - gap - 2, right - gap, bottom - gap, kMoves);
    }
    return board;
}

}  // namespace

void FrmAnimate::AddByHand() {
    namespace number = help_number;
    const controls::Part parts[] = {
        {BoardBox, ID_BoardBox, number::BoardBox},
        {LblEntry, ID_LblEntry, number::BoardBox},
        {BtnFirst, ID_BtnFirst, number::BtnFirst, "The marked colour and all behind it move"},
        {BtnStill, ID_BtnStill, number::BtnFirst, "No colour moves"},
        {BtnEntryColor, ID_BtnEntryColor, number::BtnEntryColor, "Changes the marked colour"},
        {BtnExchange, ID_BtnExchange, number::BtnExchange,
         "The first and the last marked colour change places"},
        {LblSort, ID_LblSort, number::BtnSort},
        {BtnSort[0], ID_BtnSort, number::BtnSort, "Orders the marked colours from dark to light"},
        {BtnSort[1], ID_BtnSort + 1, number::BtnSort,
         "Orders the marked colours as a rainbow does"},
    };
    AddPage(kByHand, parts);
    BoardBox.MouseDown = [this](int button, controls::Point at) {
        if (button == controls::kLeftButton) Board_MouseDown(at);
    };
    // With this the box keeps the mouse while it is dragged beyond the edge.
    BoardBox.MouseUp = [](int, controls::Point) {};
    BtnFirst.Click = [this] {
        ChangeByHand(
            [this](auto& screen) { screen::SetFirstMoving(screen, std::min(entry_, further_)); });
    };
    BtnStill.Click = [this] {
        ChangeByHand([](auto& screen) { screen::SetFirstMoving(screen, 0); });
        BoardBox.Focus();
    };
    BtnEntryColor.Click = [this] { BtnEntryColor_Click(); };
    BtnExchange.Click = [this] {
        ChangeByHand([this](auto& screen) { screen::ExchangeEntries(screen, entry_, further_); });
    };
    const screen::ColorOrder orders[] = {screen::ColorOrder::Brightness, screen::ColorOrder::Hue};
    for (int i = 0; i < 2; ++i) {
        BtnSort[i].Click = [this, order = orders[i]] {
            ChangeByHand([this, order](auto& screen) {
                // One alone stands for all that stand: what moves is in an order that is meant.
                const bool one = entry_ == further_;
                const int last = screen.IsAnimated() ? screen.firstAnimated - 1 : kEntries - 1;
                screen::SortEntries(screen, one ? 0 : std::min(entry_, further_),
                                    one ? last : std::max(entry_, further_), order);
            });
        };
    }
}

void FrmAnimate::ShowBoard() {
    if (shown_.indices.empty()) return;
    const int from = std::min(entry_, further_), to = std::max(entry_, further_);
    preview::DrawPicture(BoardOf(shown_, BoardBox.ScaleWidth(), BoardBox.ScaleHeight(), from, to),
                         BoardBox);
    const bool moves = shown_.IsAnimated() && from >= shown_.firstAnimated;
    const std::string which =
        from == to ? "Colour " + std::to_string(from + 1)
                   : "Colours " + std::to_string(from + 1) + " to " + std::to_string(to + 1);
    const int moving = shown_.IsAnimated() ? kEntries - shown_.firstAnimated : 0;
    LblEntry.SetText(which + (moves ? ": moving. " : ": standing. ") + std::to_string(moving) +
                     " of 256 move.");
}

void FrmAnimate::Mark(int entry, bool further) {
    further_ = std::clamp(entry, 0, kEntries - 1);
    if (!further) entry_ = further_;
    ShowBoard();
    ShowPossible();
}

void FrmAnimate::Board_MouseDown(controls::Point at) {
    BoardBox.Focus();
    const int column = std::clamp(at.x * kAcross / BoardBox.ScaleWidth(), 0, kAcross - 1);
    const int row = std::clamp(at.y * kAcross / BoardBox.ScaleHeight(), 0, kAcross - 1);
    Mark(row * kAcross + column, BoardBox.PressedWithShift());
}

void FrmAnimate::MoveOnBoard(int by) {
    if (further_ + by >= 0 && further_ + by < kEntries)
        Mark(further_ + by, controls::IsShiftDown());
}

// What is changed by hand is the finished screen: from then on it is what the picture began with.
void FrmAnimate::ChangeByHand(const std::function<void(screen::IndexedScreen&)>& change) {
    auto screen = live_.Finished(document_);
    if (!screen) return;
    change(*screen);
    auto begun = BeginDocument(std::move(*screen), std::nullopt);
    if (!begun) return;
    Apply(kNobody, [&](Document& document) { document = std::move(*begun); });
    ShowFinished();
    ShowDocument();
}

void FrmAnimate::BtnEntryColor_Click() {
    const auto chosen = platform::PickColor(handle(), NumberOf(shown_.palette[further_]));
    if (!chosen) return;
    ChangeByHand([&](auto& screen) { screen::SetEntry(screen, further_, ColorOf(*chosen)); });
}

}  // namespace vistrel::animate
