// The choice that the descent makes at every pixel: is a neighbouring colour better here?
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

#include "pictures/reduce/palette.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vistrel::reduce {

/// For each colour of a palette the changes to its neighbours, laid out to be weighed together.
class Alternatives {
 public:
    explicit Alternatives(const Palette& palette);

    /// The colour that a pixel should have which now has `own` and whose place in the error field
    /// holds `field`: changing a pixel's colour by d changes the sum that is made small by
    /// c * (|d|^2 + 2 d * field), see ErrorField. `own` when no neighbour would make it less.
    int Better(int own, const ColorPoint& field) const;

 private:
    struct alignas(16) Changes {
        std::array<std::int16_t, 2 * Neighbors::kMost> xy{};  ///< x and y of each d in turn
        std::array<std::int16_t, 2 * Neighbors::kMost> z{};   ///< z of each d, and 0, in turn
        std::array<std::int32_t, Neighbors::kMost> half{};    ///< |d|^2 / 2
        std::array<std::uint8_t, Neighbors::kMost> color{};
        std::int32_t count = 0;
        /// A field of at most this squared length cannot make any change worth while.
        std::uint32_t harmless = 0;
    };
    std::vector<Changes> changes_;
};

// Where the compiler has SSE2, all neighbours are weighed at once; else one after the other, as far
// as they can matter. The choice is the same. It is made for every pixel several times: inline.
#ifdef __SSE2__
inline int Alternatives::Better(int own, const ColorPoint& field) const {
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
    // Most pixels keep their colour: no sum is negative.
    unsigned better =
        _mm_movemask_ps(_mm_castsi128_ps(low)) | _mm_movemask_ps(_mm_castsi128_ps(high)) << 4;
    if (better == 0) return own;
    alignas(16) std::array<std::int32_t, Neighbors::kMost> change;
    _mm_store_si128(reinterpret_cast<__m128i*>(&change[0]), low);
    _mm_store_si128(reinterpret_cast<__m128i*>(&change[4]), high);
    int best = own;
    std::int32_t least = 0;
    for (; better != 0; better &= better - 1) {
        const int k = std::countr_zero(better);
        if (change[k] < least) {
            least = change[k];
            best = changes.color[k];
        }
    }
    return best;
}
#else
inline int Alternatives::Better(int own, const ColorPoint& field) const {
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

}  // namespace vistrel::reduce
