// The page on what moves.
#include <algorithm>

#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "core/cm_dialog.h"
#include "core/generali.h"
#include "help/context_numbers.h"
#include "platform/message_box.h"
#include "resources/ids.h"

namespace vistrel::animate {
namespace {

/// The run of colours of a bar is that of the ring; behind these stands the bar of dots.
constexpr const char* kBars[] = {"Gradient", "Pulse", "Stripes", "Comet", "Dots"};
constexpr int kDots = 4;

/// Pixels a step of the slider, and its last step. Its first leaves the size to the area.
constexpr int kPixelsOfStep = 4;
constexpr int kSizeSteps = 100;
constexpr int kMostRays = 32;

int PixelsOf(screen::Pattern pattern) {
    return pattern == screen::Pattern::Rays ? 1 : kPixelsOfStep;
}

/// What the first layer of a kind brings with it, as long as nothing has chosen the colours.
screen::Ring RingOfKind(LayerKind kind) {
    screen::Ring ring;
    if (kind == LayerKind::Background) {
        ring.keys = {{0, 0, 96}, {0, 128, 192}, {208, 240, 255}};
        ring.count = 32;
    } else {
        ring.shape = screen::RingShape::Comet;
        ring.keys = {{0, 0, 64}, {32, 96, 255}, {224, 240, 255}};
    }
    return ring;
}

}  // namespace

void FrmAnimate::AddMoves() {
    namespace number = help_number;
    const controls::Part parts[] = {
        {LblLayers, ID_LblLayers, number::Layers},
        {Layers, ID_Layers, number::Layers, "What moves on the screen, the uppermost last"},
        {BtnAddLayer, ID_BtnAddLayer, number::BtnsOfLayers,
         "Adds a bar, a shimmer, a background, or what moves on another screen"},
        {BtnDeleteLayer, ID_BtnDeleteLayer, number::BtnsOfLayers,
         "Takes away what is selected in the list"},
        {LblPattern, ID_LblPattern, number::PatternKind},
        {PatternKind, ID_PatternKind, number::PatternKind, "How the colours lie in it"},
        {LblSize, ID_LblSize, number::SizeBar},
        {LblSizeValue, ID_LblSizeValue, number::SizeBar},
        {SizeBar, ID_SizeBar, number::SizeBar, "How far it is until the colours come again"},
        {ChkReversed, ID_ChkReversed, number::ChkReversed, "Lets it run the other way"},
        {LblChooseBy, ID_LblChooseBy, number::ChooseBy},
        {ChooseBy, ID_ChooseBy, number::ChooseBy, "How the mouse chooses where it moves"},
        {LblTolerance, ID_LblTolerance, number::ToleranceBar},
        {ToleranceBar, ID_ToleranceBar, number::ToleranceBar,
         "How far a colour may differ from the one that was clicked"},
        {BtnAll, ID_BtnAll, number::BtnsOfArea, "All of the screen moves"},
        {BtnInvert, ID_BtnInvert, number::BtnsOfArea, "What stood moves, what moved stands"},
    };
    AddPage(kMoves, parts);
    ConnectMoves();
    const char* kinds[] = {"&Bar", "&Shimmer", "Back&ground", "&From another screen..."};
    for (int i = 0; i < 4; ++i) controls::AddMenuItem(addMenu_, ID_AddLayer + i, kinds[i]);
}

void FrmAnimate::ConnectMoves() {
    Layers.SelectionChanged = [this] {
        if (filling_ || Layers.SelectedItem() < 0) return;
        EndDrag();
        document_.selected = static_cast<std::size_t>(Layers.SelectedItem());
        picked_.reset();
        ShowLayer();
        ShowPossible();
        ShowMarked();
    };
    Layers.KeyUp = [this](int key) {
        if (key == controls::kKeyDelete && Selected()) DeleteLayer();
    };
    BtnAddLayer.Click = [this] { PopUpMenuAt(BtnAddLayer, addMenu_); };
    BtnDeleteLayer.Click = [this] { DeleteLayer(); };
    PatternKind.Click = [this] { PatternKind_Click(); };
    SizeBar.Change = [this] { SizeBar_Change(); };
    ChkReversed.Click = [this] {
        ChangeLayer(kNobody,
                    [this](screen::Layer& layer) { layer.reversed = ChkReversed.Value() != 0; });
    };
    ChooseBy.Click = [this] {
        EndDrag();
        picked_.reset();
        ShowPossible();
        ShowMarked();
    };
    ToleranceBar.Change = [this] { ToleranceBar_Change(); };
    BtnAll.Click = [this] {
        ChangeArea(kNobody,
                   screen::RectangleArea(0, 0, pictures::kLogoWidth, pictures::kLogoHeight));
    };
    BtnInvert.Click = [this] {
        screen::Area area = Selected()->area;
        screen::Invert(area);
        ChangeArea(kNobody, area);
    };
}

bool FrmAnimate::IsOfSelected(const controls::Control& control) const {
    const auto isOneOf = [&](std::initializer_list<const controls::Control*> some) {
        return std::find(some.begin(), some.end(), &control) != some.end();
    };
    const screen::Layer* layer = Selected();
    if (isOneOf({&BtnDeleteLayer, &ChkReversed})) return layer != nullptr;
    if (isOneOf({&LblPattern, &PatternKind})) return layer && SelectedKind() != LayerKind::Screen;
    if (isOneOf({&LblSize, &LblSizeValue, &SizeBar})) {
        using enum screen::Pattern;
        const screen::Pattern sizeless[] = {Brightness, Noise, Pieces, OfAScreen};
        return layer && std::count(std::begin(sizeless), std::end(sizeless), layer->pattern) == 0;
    }
    if (isOneOf({&LblChooseBy, &ChooseBy, &BtnAll, &BtnInvert})) return HasArea();
    if (isOneOf({&LblTolerance, &ToleranceBar})) return HasArea() && ChoosesByColor();
    return true;
}

void FrmAnimate::ShowLayers() {
    filling_ = true;
    const auto& layers = document_.picture.layers;
    while (Layers.Count() > static_cast<int>(layers.size())) Layers.RemoveItem(Layers.Count() - 1);
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const std::string name = NameOf(layers[i]);
        if (static_cast<int>(i) == Layers.Count())
            Layers.AddItem(name, "");
        else if (Layers.ItemText(static_cast<int>(i)) != name)
            Layers.SetItemText(static_cast<int>(i), name);
    }
    const int selected = Selected() ? static_cast<int>(document_.selected) : -1;
    Layers.Select(selected);
    if (selected >= 0) Layers.EnsureVisible(selected);
    filling_ = false;
    ShowLayer();
}

void FrmAnimate::ShowLayer() {
    FillPatterns();
    const screen::Layer* layer = Selected();
    ChkReversed.SetValue(layer && layer->reversed);
    const int pixels = layer ? PixelsOf(layer->pattern) : 1;
    const int size = layer ? layer->size : 0;
    SizeBar.SetRange(0, pixels == 1 ? kMostRays : kSizeSteps, 1, 10, 0);
    SizeBar.SetValue(size / pixels);
    LblSizeValue.SetText(size == 0 ? "automatic" : std::to_string(size));
}

void FrmAnimate::FillPatterns() {
    PatternKind.Clear();
    const screen::Layer* layer = Selected();
    if (!layer) return;
    const screen::Ring& ring = document_.picture.ring;
    if (SelectedKind() == LayerKind::Bar) {
        for (const char* bar : kBars) PatternKind.AddItem(bar);
        const bool dots = layer->pattern == screen::Pattern::Dots;
        PatternKind.SetListIndex(dots                 ? kDots
                                 : ring.exact.empty() ? static_cast<int>(ring.shape)
                                                      : -1);
        return;
    }
    for (const PatternName& row : PatternsOf(*SelectedKind())) {
        const int place = PatternKind.AddItem(row.name);
        if (row.pattern == layer->pattern) PatternKind.SetListIndex(place);
    }
}

void FrmAnimate::PatternKind_Click() {
    const int chosen = PatternKind.ListIndex();
    if (chosen < 0 || !Selected()) return;
    const LayerKind kind = *SelectedKind();
    Change(kNobody, [&](Document& document) {
        screen::Layer& layer = document.picture.layers[document.selected];
        if (kind != LayerKind::Bar) {
            layer.pattern = PatternsOf(kind)[static_cast<std::size_t>(chosen)].pattern;
            // A number of rays is no length.
            layer.size = 0;
            return;
        }
        layer.pattern = chosen == kDots ? screen::Pattern::Dots : screen::Pattern::Along;
        if (chosen == kDots) return;
        document.picture.ring.shape = static_cast<screen::RingShape>(chosen);
        document.picture.ring.exact.clear();
        document.areaColors = false;
    });
    ShowDocument();
}

void FrmAnimate::SizeBar_Change() {
    const screen::Layer* layer = Selected();
    if (!layer) return;
    const int size = SizeBar.Value() * PixelsOf(layer->pattern);
    // The end of a drag is told once more.
    if (size == layer->size) return;
    ChangeLayer(&SizeBar, [&](screen::Layer& changed) { changed.size = size; });
    LblSizeValue.SetText(size == 0 ? "automatic" : std::to_string(size));
}

void FrmAnimate::ChangeLayer(const void* hand, const std::function<void(screen::Layer&)>& change) {
    if (!Selected()) return;
    Change(hand, [&](Document& document) { change(document.picture.layers[document.selected]); });
}

void FrmAnimate::ChangeArea(const void* hand, const screen::Area& area) {
    if (!Selected() || Selected()->area == area) return;
    Change(hand, [&](Document& document) {
        screen::Layer& layer = document.picture.layers[document.selected];
        layer.area = area;
        if (document.areaColors) TakeAreaColors(document);
    });
    if (document_.areaColors) ShowRing();
}

void FrmAnimate::AddLayer(LayerKind kind) {
    Change(kNobody, [&](Document& document) {
        screen::MovingPicture& picture = document.picture;
        const bool first = picture.layers.empty();
        picture.layers.push_back(NewLayer(kind, document));
        document.selected = picture.layers.size() - 1;
        if (!first) return;
        picture.ring = RingOfKind(kind);
        document.areaColors = kind == LayerKind::Shimmer;
        if (document.areaColors) TakeAreaColors(document);
    });
    ShowDocument();
    Layers.Focus();
}

void FrmAnimate::AddLayerOfScreen() {
    const std::string path = core::CutAtNul(core::ShowOpenDialog(
        handle(), "Startup screens|*.sys;*.bmp", "Moving colours of another screen", screens_));
    if (path.empty()) return;
    const auto other = ReadScreen(path);
    if (!other) {
        platform::Tell(handle(), path + " cannot be read as a screen.");
        return;
    }
    screen::Layer layer = screen::LayerOfScreen(*other);
    if (layer.area.IsEmpty()) {
        platform::Tell(handle(), "Nothing moves on " + path + ".");
        return;
    }
    Change(kNobody, [&](Document& document) {
        document.picture.ring = screen::RingOfScreen(*other);
        document.areaColors = false;
        document.picture.layers.push_back(std::move(layer));
        document.selected = document.picture.layers.size() - 1;
    });
    ShowDocument();
    Layers.Focus();
}

void FrmAnimate::DeleteLayer() {
    if (!Selected()) return;
    Change(kNobody, [](Document& document) {
        auto& layers = document.picture.layers;
        layers.erase(layers.begin() + static_cast<std::ptrdiff_t>(document.selected));
        if (document.selected == layers.size() && document.selected > 0) --document.selected;
    });
    ShowDocument();
    // The button may be grey now, and nobody would have the keys.
    Layers.Focus();
}

void FrmAnimate::MenuCommand(int id) {
    const int kind = id - ID_AddLayer;
    if (kind < 0 || kind > 3) return;
    if (kind == static_cast<int>(LayerKind::Screen))
        AddLayerOfScreen();
    else
        AddLayer(static_cast<LayerKind>(kind));
}

}  // namespace vistrel::animate
