// The page on the colours that move.
#include <algorithm>

#include "animate/color_number.h"
#include "animate/frm_animate.h"
#include "help/context_numbers.h"
#include "pictures/preview/draw_preview.h"
#include "platform/look_dialogs.h"
#include "resources/ids.h"

namespace vistrel::animate {
namespace {

/// Behind the shapes of a ring, in their order.
constexpr const char* kRuns[] = {"Gradient", "Pulse", "Stripes", "Comet", "Colours of the area"};
constexpr int kOfTheArea = 4;
/// There only while the ring came with a screen.
constexpr const char* kAsItCame = "As it came";

constexpr screen::ScreenColor kFreshKey{255, 255, 255};
constexpr screen::ScreenColor kFreshGround{0, 0, 0};

void ShowSwatch(controls::Label& swatch, const screen::ScreenColor& color) {
    swatch.SetForeColor(0);
    swatch.SetBackColor(NumberOf(color));
}

}  // namespace

void FrmAnimate::AddColors() {
    namespace number = help_number;
    const controls::Part parts[] = {
        {LblRun, ID_LblRun, number::RunKind},
        {RunKind, ID_RunKind, number::RunKind, "How one colour passes into the next"},
        {LblCount, ID_LblCount, number::CountBar},
        {LblCountValue, ID_LblCountValue, number::CountBar},
        {CountBar, ID_CountBar, number::CountBar,
         "How many colours move; the picture has the rest of the 256"},
        {RingBox, ID_RingBox, number::RingBox, "The colours that move"},
        {BtnMoreKeys, ID_BtnMoreKeys, number::BtnKey, "Adds a colour"},
        {BtnFewerKeys, ID_BtnFewerKeys, number::BtnKey, "Takes the last colour away"},
        {ChkGround, ID_ChkGround, number::ChkGround,
         "Puts a colour between dots, drops and stars, in place of the picture"},
        {BtnGround, ID_BtnGround, number::ChkGround, "Chooses the colour of the gaps"},
        {GroundSwatch, ID_GroundSwatch, number::ChkGround},
    };
    AddPage(kColors, parts);
    for (int i = 0; i < 4; ++i) {
        const controls::Part key[] = {
            {BtnKey[i], ID_BtnKey + i, number::BtnKey, "Chooses one of the colours that move"},
            {KeySwatch[i], ID_KeySwatch + i, number::BtnKey},
        };
        AddPage(kColors, key);
        BtnKey[i].Click = [this, i] { BtnKey_Click(i); };
    }
    RunKind.Click = [this] { RunKind_Click(); };
    CountBar.Change = [this] { CountBar_Change(); };
    BtnMoreKeys.Click = [this] { ChangeKeys(1); };
    BtnFewerKeys.Click = [this] { ChangeKeys(-1); };
    ChkGround.Click = [this] { ChkGround_Click(); };
    BtnGround.Click = [this] { BtnGround_Click(); };
}

void FrmAnimate::ShowColors() {
    const screen::Ring& ring = document_.picture.ring;
    const bool came = !ring.exact.empty() && !document_.areaColors;
    RunKind.Clear();
    for (const char* run : kRuns) RunKind.AddItem(run);
    if (came) RunKind.AddItem(kAsItCame);
    RunKind.SetListIndex(came                   ? kOfTheArea + 1
                         : document_.areaColors ? kOfTheArea
                                                : static_cast<int>(ring.shape));
    CountBar.SetRange(screen::kFewestMoving, screen::kMostMoving, 1, 8, screen::Ring().count);
    CountBar.SetValue(ring.count);
    for (std::size_t i = 0; i < std::size(KeySwatch); ++i)
        ShowSwatch(KeySwatch[i], i < ring.keys.size() ? ring.keys[i] : screen::ScreenColor{});
    const auto& ground = document_.picture.ground;
    ChkGround.SetValue(ground.has_value());
    ShowSwatch(GroundSwatch, ground.value_or(kFreshGround));
    ShowRing();
}

void FrmAnimate::ShowRing() {
    const auto colors = screen::RingColors(document_.picture.ring);
    LblCountValue.SetText(std::to_string(colors.size()));
    pictures::RgbPicture strip{RingBox.ScaleWidth(), RingBox.ScaleHeight(), {}};
    for (int y = 0; y < strip.height; ++y) {
        for (int x = 0; x < strip.width; ++x) {
            const auto& color =
                colors[static_cast<std::size_t>(x) * colors.size() / std::size_t(strip.width)];
            strip.pixels.insert(strip.pixels.end(), color.begin(), color.end());
        }
    }
    preview::DrawPicture(strip, RingBox);
}

void FrmAnimate::ChangeRing(const void* hand, const std::function<void(screen::Ring&)>& change) {
    Change(hand, [&](Document& document) {
        change(document.picture.ring);
        if (document.areaColors) TakeAreaColors(document);
    });
}

void FrmAnimate::RunKind_Click() {
    const int chosen = RunKind.ListIndex();
    if (chosen < 0 || chosen > kOfTheArea) return;
    Change(kNobody, [&](Document& document) {
        document.areaColors = chosen == kOfTheArea && Selected() != nullptr;
        if (document.areaColors) {
            TakeAreaColors(document);
            return;
        }
        document.picture.ring.exact.clear();
        if (chosen != kOfTheArea)
            document.picture.ring.shape = static_cast<screen::RingShape>(chosen);
    });
    ShowDocument();
}

void FrmAnimate::CountBar_Change() {
    const int count = CountBar.Value();
    // The end of a drag is told once more.
    if (count == document_.picture.ring.count) return;
    ChangeRing(&CountBar, [&](screen::Ring& ring) { ring.count = count; });
    ShowRing();
}

void FrmAnimate::BtnKey_Click(int index) {
    const auto& keys = document_.picture.ring.keys;
    const auto place = static_cast<std::size_t>(index);
    if (place >= keys.size()) return;
    const auto chosen = platform::PickColor(handle(), NumberOf(keys[place]));
    if (!chosen) return;
    ChangeRing(kNobody, [&](screen::Ring& ring) { ring.keys[place] = ColorOf(*chosen); });
    ShowColors();
}

void FrmAnimate::ChangeKeys(int by) {
    ChangeRing(kNobody, [&](screen::Ring& ring) {
        ring.keys.resize(ring.keys.size() + static_cast<std::size_t>(by), kFreshKey);
    });
    ShowDocument();
    // A button that is grey now would keep the keys for nobody.
    (by > 0 ? BtnKey[document_.picture.ring.keys.size() - 1] : BtnMoreKeys).Focus();
}

void FrmAnimate::ChkGround_Click() {
    Change(kNobody, [this](Document& document) {
        document.picture.ground.reset();
        if (ChkGround.Value() != 0) document.picture.ground = kFreshGround;
    });
    ShowColors();
}

void FrmAnimate::BtnGround_Click() {
    const auto chosen =
        platform::PickColor(handle(), NumberOf(document_.picture.ground.value_or(kFreshGround)));
    if (!chosen) return;
    Change(kNobody, [&](Document& document) { document.picture.ground = ColorOf(*chosen); });
    ShowColors();
}

}  // namespace vistrel::animate
