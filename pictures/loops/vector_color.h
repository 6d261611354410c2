// Colours by vectors.
#pragma once

#include "pictures/loops/loops.h"

namespace vistrel::loops {

/// The rounded sum of a's and b's weights (of 65,536) of two numbers.
template <int a, int b, class Vector>
Vector WeighedColor(Vector ofA, Vector ofB) {
    static_assert(a == static_cast<std::int16_t>(a) && b == static_cast<std::int16_t>(b));
    const Vector weights = Vector::AllWide((a & 0xFFFF) | b * 65536);
    const Vector half = Vector::AllWide(1 << 15);
    const auto sum = [&](Vector pairs) {
        return pairs.TimesSummed(weights).AddWide(half).DownWide(16);
    };
    return sum(ofA.LowWith(ofB)).PackedWith(sum(ofA.HighWith(ofB)));
}

/// Fine samples as bytes, in the lower half.
template <class Vector>
Vector ToSampleBytes(Vector fine) {
    const Vector offset = Vector::All((128 << kSampleBits) + (1 << (kSampleBits - 1)));
    return fine.AddSaturated(offset).template Down<kSampleBits>().PackedBytes();
}

// The whole parts of the weights come first: where a sum stops at the limit of 16 bits, what
// follows leaves it far outside the range of bytes, as it should be.
template <class Vector>
int YccToRgbByVectors(const std::int16_t* const* rows, int width, std::uint8_t* rgb) {
    constexpr int kCount = Vector::kCount;
    const Vector zero = Vector::All(0);
    int x = 0;
    // A pixel is written as four bytes, the last of which belongs to the next one.
    for (; x + kCount < width; x += kCount) {
        const Vector y = Vector::Load(rows[0] + x);
        const Vector cb = Vector::Load(rows[1] + x);
        const Vector cr = Vector::Load(rows[2] + x);
        const Vector red = y.AddSaturated(cr).AddSaturated(WeighedColor<kRedOfCr, 0>(cr, cr));
        const Vector green =
            y.SubtractSaturated(cr).AddSaturated(WeighedColor<kGreenOfCb, kGreenOfCr>(cb, cr));
        const Vector blue =
            y.AddSaturated(cb).AddSaturated(cb).AddSaturated(WeighedColor<kBlueOfCb, 0>(cb, cb));
        const Vector redGreen = ToSampleBytes(red).LowBytesWith(ToSampleBytes(green));
        const Vector blueAlone = ToSampleBytes(blue).LowBytesWith(zero);
        std::uint32_t pixels[kCount];
        redGreen.LowWith(blueAlone).Store(pixels);
        redGreen.HighWith(blueAlone).Store(pixels + kCount / 2);
        for (int i = 0; i < kCount; ++i, rgb += 3) __builtin_memcpy(rgb, &pixels[i], 4);
    }
    Vector::End();
    return x;
}

}  // namespace vistrel::loops
