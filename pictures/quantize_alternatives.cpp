// Where the compiler has SSE2, all neighbours are weighed at once; else one after the other, as far
// as they can matter. The choice is the same.
#include "pictures/quantize_alternatives.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vistrel {

Alternatives::Alternatives(const Palette& palette) : changes_(palette.size) {
    const NeighborTable neighbors(palette);
    for (int i = 0; i < palette.size; ++i) {
        const Neighbors& list = neighbors.Of(i);
        Changes& changes = changes_[i];
        changes.count = list.count;
        changes.color = list.color;
        changes.harmless = list.count == 0 ? UINT32_MAX : std::uint32_t(list.squared[0]) / 4;
        for (int k = 0; k < list.count; ++k) {
            const Point d = palette.colors[list.color[k]] - palette.colors[i];
            changes.xy[2 * k] = d.x;
            changes.xy[2 * k + 1] = d.y;
            changes.z[2 * k] = d.z;
            changes.half[k] = list.squared[k] / 2;
        }
    }
}

#ifdef __SSE2__
int Alternatives::Better(int own, const Point& field) const {
    static_assert(Neighbors::kMost == 8);
    const Changes& changes = changes_[own];
    const __m128i whole = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&field));
    const __m128i xy = _mm_shuffle_epi32(whole, _MM_SHUFFLE(0, 0, 0, 0));
    const __m128i z = _mm_shuffle_epi32(whole, _MM_SHUFFLE(1, 1, 1, 1));
    const auto weigh = [&](int four) {
        const auto load = [four](const void* at) {
            return _mm_load_si128(static_cast<const __m128i*>(at) + four);
        };
        const __m128i product = _mm_add_epi32(_mm_madd_epi16(load(changes.xy.data()), xy),
                                              _mm_madd_epi16(load(changes.z.data()), z));
        return _mm_add_epi32(product, load(changes.half.data()));
    };
    const __m128i low = weigh(0);
    const __m128i high = weigh(1);
    // Most pixels are content: no sum is negative.
    const int signs = _mm_movemask_ps(_mm_castsi128_ps(_mm_or_si128(low, high)));
    if (signs == 0) return own;
    alignas(16) std::array<std::int32_t, Neighbors::kMost> change;
    _mm_store_si128(reinterpret_cast<__m128i*>(&change[0]), low);
    _mm_store_si128(reinterpret_cast<__m128i*>(&change[4]), high);
    int best = own;
    std::int32_t least = 0;
    for (int k = 0; k < Neighbors::kMost; ++k) {
        if (change[k] < least) {
            least = change[k];
            best = changes.color[k];
        }
    }
    return best;
}
#else
int Alternatives::Better(int own, const Point& field) const {
    const Changes& changes = changes_[own];
    const auto square = [](std::int32_t value) {
        return static_cast<std::uint32_t>(value * value);
    };
    const std::uint32_t squared = square(field.x) + square(field.y) + square(field.z);
    if (squared <= changes.harmless) return own;
    int best = own;
    std::int32_t least = 0;
    // A colour that is twice as far away as the field is long, or farther, is no better.
    for (int k = 0; k < changes.count; ++k) {
        if (static_cast<std::uint32_t>(changes.half[k]) / 2 >= squared) break;
        const std::int32_t change = changes.half[k] + changes.xy[2 * k] * field.x +
                                    changes.xy[2 * k + 1] * field.y + changes.z[2 * k] * field.z;
        if (change < least) {
            least = change;
            best = changes.color[k];
        }
    }
    return best;
}
#endif

}  // namespace vistrel
