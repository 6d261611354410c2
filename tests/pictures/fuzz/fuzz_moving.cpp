// Any bytes as what a user does with a screen that moves: the screen, the layers with their areas,
// the ring and the board follow from them.
#include <cstdlib>

#include "pictures/screen/board.h"
#include "pictures/screen/check.h"
#include "pictures/screen/moving_screen.h"

using namespace vistrel::screen;

namespace {

/// Numbers out of the input; 0 when it is used up.
class Input {
 public:
    Input(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

    std::uint8_t Byte() {
        if (left_ == 0) return 0;
        --left_;
        return *data_++;
    }
    /// Any 16-bit number; now and then a far larger one.
    int Number() {
        const int number = static_cast<std::int16_t>(Byte() | Byte() << 8);
        return number == 32767 ? 2147483647 : number == -32768 ? -2147483647 - 1 : number;
    }
    bool IsEmpty() const { return left_ == 0; }

 private:
    const std::uint8_t* data_;
    std::size_t left_;
};

void Demand(bool sound) {
    if (!sound) std::abort();
}

/// Stripes of the numbers that come next.
IndexedScreen ReadScreen(Input& input) {
    IndexedScreen screen{320, 400, std::vector<std::uint8_t>(kScreenPixels), {}, input.Byte()};
    std::vector<std::uint8_t> entries(1 + input.Byte() % 64);
    for (std::uint8_t& entry : entries) entry = input.Byte();
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        screen.indices[i] = entries[(i + i / 320) % entries.size()];
    for (auto& color : screen.palette)
        for (std::uint8_t& part : color) part = input.Byte();
    return screen;
}

Area ReadArea(Input& input, const vistrel::pictures::RgbPicture& picture) {
    switch (input.Byte() % 4) {
        case 0:
            return RectangleArea(input.Number(), input.Number(), input.Number(), input.Number());
        case 1: {
            std::vector<ScreenPoint> corners(input.Byte() % 40);
            for (ScreenPoint& corner : corners) corner = {input.Number(), input.Number()};
            return LassoArea(corners);
        }
        case 2: {
            const ScreenPoint at{input.Number() % 330, input.Number() % 410};
            const int tolerance = input.Number();
            return LikeColorArea(picture, at, tolerance, input.Byte() & 1);
        }
        default:
            Area area;
            Invert(area);
            return area;
    }
}

Layer ReadLayer(Input& input, const vistrel::pictures::RgbPicture& picture) {
    constexpr int kPatterns = static_cast<int>(Pattern::OfAScreen) + 1;
    const auto pattern = static_cast<Pattern>(input.Byte() % kPatterns);
    Layer layer;
    if (pattern == Pattern::OfAScreen) layer = LayerOfScreen(ReadScreen(input));
    layer.pattern = pattern;
    if (layer.area.IsEmpty()) layer.area = ReadArea(input, picture);
    if (input.Byte() & 1) Remove(layer.area, ReadArea(input, picture));
    layer.reversed = input.Byte() & 1;
    if (pattern != Pattern::OfAScreen) layer.size = input.Number();
    if (input.Byte() & 1) layer.centre = ScreenPoint{input.Number(), input.Number()};
    return layer;
}

void ReadRing(Input& input, MovingPicture& document) {
    if (input.Byte() & 1) return;
    document.ring = Ring{};
    document.ring.shape = static_cast<RingShape>(input.Byte() % 4);
    document.ring.count = input.Number();
    document.ring.keys.resize(input.Byte() % 6);
    for (ScreenColor& key : document.ring.keys) key = {input.Byte(), input.Byte(), input.Byte()};
    if (input.Byte() & 1 && !document.layers.empty())
        document.ring = RingOfArea(StillPicture(document), document.layers[0].area, input.Number());
    if (input.Byte() & 1) document.ground = ScreenColor{input.Byte(), 0, 0};
}

void UseBoard(Input& input, IndexedScreen& screen) {
    const auto before = screen;
    ExchangeEntries(screen, input.Number(), input.Number());
    SortEntries(screen, input.Byte(), input.Byte(),
                input.Byte() & 1 ? ColorOrder::Hue : ColorOrder::Brightness);
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        Demand(screen.palette[screen.indices[i]] == before.palette[before.indices[i]]);
    SetEntry(screen, input.Number(), {});
    SetFirstMoving(screen, input.Number());
    Demand(screen.firstAnimated >= 0 && screen.firstAnimated < 256);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    auto document = BeginMoving(ReadScreen(input), std::nullopt);
    Demand(document.has_value());
    const auto picture = StillPicture(*document);
    for (int i = 0; i < 3 && !input.IsEmpty(); ++i)
        document->layers.push_back(ReadLayer(input, picture));
    ReadRing(input, *document);
    auto made = MakeMovingScreen(*document);
    Demand(made && made->indices.size() == kScreenPixels);
    const auto count = static_cast<int>(RingColors(document->ring).size());
    Demand(made->firstAnimated == 0 || made->firstAnimated == 256 - count);
    Demand(FaultsOfScreen(ScreenFile(*made)).empty());
    for (const Layer& layer : document->layers)
        for (const RingPlace place : PlacesOf(layer, picture, count))
            Demand(place >= kGap && place < count);
    UseBoard(input, *made);
    return 0;
}
