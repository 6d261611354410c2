#include "pictures/screen/moving_screen.h"

#include <algorithm>
#include <new>

#include "pictures/reduce/quantize.h"
#include "pictures/screen/fill_in.h"
#include "pictures/screen/merge_colors.h"

namespace vistrel::screen {
namespace {

constexpr int kEntries = 256;

template <class Picture>
bool IsOfScreenSize(const Picture& picture) {
    return picture.width == pictures::kLogoWidth && picture.height == pictures::kLogoHeight;
}

int CountOf(const Ring& ring) { return static_cast<int>(RingColors(ring).size()); }

/// Where each pixel stands on the ring, kStands, or kGap where the ground is seen.
std::vector<RingPlace> PlacesOnScreen(const MovingPicture& document) {
    const bool isNeeded =
        std::any_of(document.layers.begin(), document.layers.end(),
                    [](const Layer& layer) { return layer.pattern == Pattern::Brightness; });
    const pictures::RgbPicture picture = isNeeded ? StillPicture(document) : pictures::RgbPicture{};
    const int count = CountOf(document.ring);
    std::vector<RingPlace> all(kScreenPixels, kStands);
    for (const Layer& layer : document.layers) {
        const std::vector<RingPlace> places = PlacesOf(layer, picture, count);
        for (std::size_t i = 0; i < kScreenPixels; ++i)
            if (places[i] >= 0 || (places[i] == kGap && document.ground)) all[i] = places[i];
    }
    return all;
}

/// What a screen with these places has room for.
struct Room {
    bool moves;
    bool ground;  ///< whether the ground has an entry of its own
    int still;    ///< how many colours may stand beside it
};

Room RoomBeside(const std::vector<RingPlace>& places, int count) {
    const auto has = [&](auto is) { return std::any_of(places.begin(), places.end(), is); };
    Room room{has([](RingPlace place) { return place >= 0; }),
              has([](RingPlace place) { return place == kGap; }), kEntries};
    if (room.moves) room.still -= count;
    room.ground = room.ground && room.still > 1;
    if (room.ground) --room.still;
    return room;
}

Area AreaThatIsPainted(const std::vector<RingPlace>& places) {
    Area area;
    for (std::size_t i = 0; i < kScreenPixels; ++i) area.in[i] = places[i] != kStands;
    return area;
}

/// Gives painted pixels the nearest colours to what they have in the picture: while a layer is
/// dragged, what it covered is seen again.
void FindNearest(const pictures::RgbPicture& picture, const Area& painted, StillPart& still) {
    constexpr int kBits = 5;
    std::vector<std::int16_t> known(std::size_t{1} << (3 * kBits), -1);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (!painted.in[i]) continue;
        const std::uint8_t* const pixel = &picture.pixels[i * 3];
        constexpr int kDrop = 8 - kBits;
        std::int16_t& found =
            known[(std::size_t{pixel[0]} >> kDrop << (2 * kBits)) |
                  (std::size_t{pixel[1]} >> kDrop << kBits) | std::size_t{pixel[2]} >> kDrop];
        if (found < 0) found = NearestColor(still.colors, {pixel[0], pixel[1], pixel[2]});
        still.indices[i] = static_cast<std::uint8_t>(found);
    }
}

std::optional<StillPart> Reduced(const pictures::RgbPicture& picture, int room) {
    StillPart still;
    still.indices.resize(kScreenPixels);
    const int colors = std::max(room, 2);
    std::vector<std::uint8_t> entries(std::size_t(colors) * 4);
    if (!reduce::QuantizeRgb(picture.pixels.data(), picture.width, picture.height, colors,
                             still.indices.data(), entries.data()))
        return std::nullopt;
    for (std::size_t i = 0; i < entries.size(); i += 4)
        still.colors.push_back({entries[i + 2], entries[i + 1], entries[i]});
    return still;
}

/// The sum of the squared errors of what stands.
std::uint64_t ErrorOf(const StillPart& still, const pictures::RgbPicture& original,
                      const Area& painted) {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (painted.in[i]) continue;
        const ScreenColor& color = still.colors[still.indices[i]];
        for (std::size_t c = 0; c < 3; ++c) {
            const int error = color[c] - original.pixels[i * 3 + c];
            sum += static_cast<std::uint64_t>(error * error);
        }
    }
    return sum;
}

// What fills the moving part makes it cheap, but may look to the reducer like a picture that wants
// stronger dithering: the whole picture is tried as well.
std::optional<StillPart> ReduceAnew(const pictures::RgbPicture& original, const Area& painted,
                                    int room) {
    pictures::RgbPicture filled = original;
    FillIn(filled, painted);
    std::optional<StillPart> still = Reduced(filled, room);
    if (!still) return std::nullopt;
    const std::uint64_t error = ErrorOf(*still, original, painted);
    if (error > 0 && !painted.IsEmpty()) {
        std::optional<StillPart> whole = Reduced(original, room);
        if (whole && ErrorOf(*whole, original, painted) < error) still = std::move(whole);
    }
    FindNearest(original, painted, *still);
    return still;
}

StillPart MergeBase(const IndexedScreen& base, const Area& painted, int room) {
    std::array<std::uint32_t, kEntries> counts{};
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        if (!painted.in[i]) ++counts[base.indices[i]];
    MergedColors merged = MergeColors(base.palette, counts, room);
    StillPart still{std::move(merged.colors), base.indices};
    for (std::uint8_t& index : still.indices) index = merged.entry[index];
    return still;
}

/// The entry that each colour of the still part gets among the first `room`.
std::array<std::uint8_t, kEntries> EntriesOf(const StillPart& still, int room) {
    const std::vector<ScreenColor> kept(
        still.colors.begin(), still.colors.begin() + std::min(room, int(still.colors.size())));
    std::array<std::uint8_t, kEntries> entries{};
    for (std::size_t i = 0; i < still.colors.size(); ++i)
        entries[i] =
            i < kept.size() ? static_cast<std::uint8_t>(i) : NearestColor(kept, still.colors[i]);
    return entries;
}

}  // namespace

std::optional<MovingPicture> BeginMoving(IndexedScreen base,
                                         std::optional<pictures::RgbPicture> original) {
    if (!IsOfScreenSize(base) || (original && !IsOfScreenSize(*original))) return std::nullopt;
    MovingPicture document{std::move(base), std::move(original), {}, {}, {}};
    Layer layer = LayerOfScreen(document.base);
    if (layer.area.IsEmpty()) return document;
    document.ring = RingOfScreen(document.base);
    document.layers.push_back(std::move(layer));
    return document;
}

pictures::RgbPicture StillPicture(const MovingPicture& document) {
    if (document.original) return *document.original;
    pictures::RgbPicture picture{document.base.width, document.base.height, {}};
    picture.pixels.resize(kScreenPixels * 3);
    std::uint8_t* out = picture.pixels.data();
    for (const std::uint8_t index : document.base.indices)
        for (const std::uint8_t part : document.base.palette[index]) *out++ = part;
    return picture;
}

// Nothing is thrown at callers: where memory runs out, nothing can be reduced.
std::optional<StillPart> ReduceStill(const MovingPicture& document) try {
    const std::vector<RingPlace> places = PlacesOnScreen(document);
    const Area painted = AreaThatIsPainted(places);
    const int room = RoomBeside(places, CountOf(document.ring)).still;
    if (!document.original) return MergeBase(document.base, painted, room);
    return ReduceAnew(*document.original, painted, room);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

IndexedScreen Compose(const MovingPicture& document, const StillPart& still) {
    const std::vector<ScreenColor> ring = RingColors(document.ring);
    const std::vector<RingPlace> places = PlacesOnScreen(document);
    const Room room = RoomBeside(places, static_cast<int>(ring.size()));
    const int first = kEntries - static_cast<int>(ring.size());
    const std::array<std::uint8_t, kEntries> entries = EntriesOf(still, room.still);

    IndexedScreen screen{
        pictures::kLogoWidth, pictures::kLogoHeight, still.indices, {}, room.moves ? first : 0};
    std::copy_n(still.colors.begin(), std::min(room.still, int(still.colors.size())),
                screen.palette.begin());
    std::uint8_t ground = 0;
    if (room.ground) {
        ground = static_cast<std::uint8_t>(room.still);
        screen.palette[ground] = *document.ground;
    }
    if (room.moves) std::copy(ring.begin(), ring.end(), screen.palette.begin() + first);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        std::uint8_t& index = screen.indices[i];
        if (places[i] == kStands) {
            index = entries[index];
        } else {
            index = places[i] == kGap ? ground : static_cast<std::uint8_t>(first + places[i]);
        }
    }
    return screen;
}

std::optional<IndexedScreen> MakeMovingScreen(const MovingPicture& document) try {
    const std::optional<StillPart> still = ReduceStill(document);
    if (!still) return std::nullopt;
    return Compose(document, *still);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

}  // namespace vistrel::screen
