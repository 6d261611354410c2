// Blurring in 16-bit integers. Where the compiler has SSE2, two pixels at a time with the same
// result. Errors are within -16,383..16,383, see WorkingSpace: sums of two fit into 16 bits.
#include "pictures/reduce/blur.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vistrel::reduce {
namespace {

/// exp(-d*d/4) for d = 0, 1, 2, brought to a sum of 256 over -2..2.
constexpr std::array<int, 3> kGauss = {78, 60, 29};
constexpr int kDownBits = 12;

#ifdef __SSE2__
__m128i Load(const ColorPoint* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }
void Store(ColorPoint* at, __m128i value) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(at), value);
}
__m128i Pair(int low, int high) { return _mm_set1_epi32((low & 0xFFFF) | (high << 16)); }

/// (a * low of ab + b * high of ab + c * low of cd + d * high of cd + half) >> bits, eight times.
template <int bits>
__m128i WeighFour(__m128i a, __m128i b, __m128i ab, __m128i c, __m128i d, __m128i cd) {
    const __m128i half = _mm_set1_epi32(1 << (bits - 1));
    const __m128i low = _mm_add_epi32(_mm_madd_epi16(_mm_unpacklo_epi16(a, b), ab),
                                      _mm_madd_epi16(_mm_unpacklo_epi16(c, d), cd));
    const __m128i high = _mm_add_epi32(_mm_madd_epi16(_mm_unpackhi_epi16(a, b), ab),
                                       _mm_madd_epi16(_mm_unpackhi_epi16(c, d), cd));
    return _mm_packs_epi32(_mm_srai_epi32(_mm_add_epi32(low, half), bits),
                           _mm_srai_epi32(_mm_add_epi32(high, half), bits));
}
#else
std::int16_t Narrow(std::int32_t value) {
    return static_cast<std::int16_t>(std::clamp(value, -32768, 32767));
}
#endif

}  // namespace

ErrorField::ErrorField(int width, int height, int lambda)
    : width_(width), height_(height), stride_(width + 2 * kMargin + 1) {
    // In 1/65,536: G(0) = 78/256 * 78/256, and lambda.
    const std::int64_t c = kGauss[0] * kGauss[0] + lambda * 256;
    step_ = static_cast<std::int32_t>(2 * c * 65536 / (65536 + lambda * 256));
    for (int d = 0; d <= kReach; ++d) {
        down_[kReach - d] =
            static_cast<std::int16_t>((std::int64_t{kGauss[d]} << (kDownBits + 8)) / c);
    }
    down_[3] = static_cast<std::int16_t>((std::int64_t{lambda} << (kDownBits + 8)) / c);
    for (int dy = -kReach; dy <= kReach; ++dy) {
        for (int dx = -kReach; dx <= kReach; ++dx) {
            if (dx == 0 && dy == 0) continue;
            const std::int64_t weight =
                std::int64_t{kGauss[std::abs(dx)]} * kGauss[std::abs(dy)] * 65536 / c;
            std::fill_n(&spread_[dy + kReach][4 * (dx + kReach)], 3,
                        static_cast<std::int16_t>(weight));
        }
    }
    field_.resize(std::size_t(height + 2 * kReach) * stride_);
    errors_.resize(std::size_t(kSide) * stride_);
    along_.resize(std::size_t(kSide) * stride_);
}

void ErrorField::Add(int x, int y, const ColorPoint& change) {
    ColorPoint* at = &field_[Place(x - kReach, y - kReach)];
#ifdef __SSE2__
    const __m128i one = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&change));
    const __m128i twice = _mm_slli_epi16(_mm_unpacklo_epi64(one, one), 1);
    const __m128i unit = _mm_set1_epi16(1);
    for (int row = 0; row < kSide; ++row, at += stride_) {
        for (int pair = 0; pair < 3; ++pair) {
            const __m128i weights =
                _mm_loadu_si128(reinterpret_cast<const __m128i*>(&spread_[row][8 * pair]));
            // The product's half is in its last bit: round it away.
            const __m128i product = _mm_mulhi_epi16(twice, weights);
            const __m128i rounded = _mm_srai_epi16(_mm_add_epi16(product, unit), 1);
            Store(at + 2 * pair, _mm_add_epi16(Load(at + 2 * pair), rounded));
        }
    }
    at -= 3 * stride_ - kReach;
#else
    const auto part = [](std::int32_t value, std::int32_t weight) {
        return (value * weight + 32768) >> 16;
    };
    for (int row = 0; row < kSide; ++row, at += stride_) {
        const std::int16_t* const weights = spread_[row].data();
        for (int i = 0; i < kSide; ++i) {
            at[i].x = static_cast<std::int16_t>(at[i].x + part(change.x, weights[4 * i]));
            at[i].y = static_cast<std::int16_t>(at[i].y + part(change.y, weights[4 * i]));
            at[i].z = static_cast<std::int16_t>(at[i].z + part(change.z, weights[4 * i]));
        }
    }
    at -= 3 * stride_ - kReach;
#endif
    at->x = static_cast<std::int16_t>(at->x + change.x);
    at->y = static_cast<std::int16_t>(at->y + change.y);
    at->z = static_cast<std::int16_t>(at->z + change.z);
}

void ErrorField::ClearRow(int y) { std::fill_n(AlongAt(y), width_, ColorPoint{}); }

void ErrorField::BlurAlong(int y) {
    const ColorPoint* const e = ErrorsAt(y);
    ColorPoint* const result = AlongAt(y);
#ifdef __SSE2__
    const __m128i outer = Pair(kGauss[2], kGauss[1]);
    const __m128i inner = Pair(kGauss[0], 0);
    for (int x = 0; x < width_; x += 2) {
        Store(result + x, WeighFour<8>(_mm_add_epi16(Load(e + x - 2), Load(e + x + 2)),
                                       _mm_add_epi16(Load(e + x - 1), Load(e + x + 1)), outer,
                                       Load(e + x), _mm_setzero_si128(), inner));
    }
#else
    const auto blur = [](int outer, int inner, int centre) {
        const int sum = kGauss[2] * outer + kGauss[1] * inner + kGauss[0] * centre;
        return static_cast<std::int16_t>((sum + 128) >> 8);
    };
    for (int x = 0; x < width_; ++x) {
        const ColorPoint* const at = e + x;
        result[x] = {blur(at[-2].x + at[2].x, at[-1].x + at[1].x, at->x),
                     blur(at[-2].y + at[2].y, at[-1].y + at[1].y, at->y),
                     blur(at[-2].z + at[2].z, at[-1].z + at[1].z, at->z), 0};
    }
#endif
}

void ErrorField::BlurDown(int y) {
    const ColorPoint* const a = AlongAt(y - 2);
    const ColorPoint* const b = AlongAt(y - 1);
    const ColorPoint* const c = AlongAt(y);
    const ColorPoint* const d = AlongAt(y + 1);
    const ColorPoint* const f = AlongAt(y + 2);
    const ColorPoint* const e = ErrorsAt(y);
    ColorPoint* const result = &field_[Place(0, y)];
#ifdef __SSE2__
    const __m128i outer = Pair(down_[0], down_[1]);
    const __m128i inner = Pair(down_[2], down_[3]);
    for (int x = 0; x < width_; x += 2) {
        Store(result + x, WeighFour<kDownBits>(_mm_add_epi16(Load(a + x), Load(f + x)),
                                               _mm_add_epi16(Load(b + x), Load(d + x)), outer,
                                               Load(c + x), Load(e + x), inner));
    }
#else
    const auto blur = [&](int outer, int inner, int centre, int error) {
        const int sum = down_[0] * outer + down_[1] * inner + down_[2] * centre + down_[3] * error;
        return Narrow((sum + (1 << (kDownBits - 1))) >> kDownBits);
    };
    for (int x = 0; x < width_; ++x) {
        result[x] = {blur(a[x].x + f[x].x, b[x].x + d[x].x, c[x].x, e[x].x),
                     blur(a[x].y + f[x].y, b[x].y + d[x].y, c[x].y, e[x].y),
                     blur(a[x].z + f[x].z, b[x].z + d[x].z, c[x].z, e[x].z), 0};
    }
#endif
}

}  // namespace vistrel::reduce
