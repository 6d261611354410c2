// The loops over rows of errors, the same for every kind of vector.
#pragma once

#include "pictures/loops/loops.h"

namespace vistrel::loops {

template <class Vector>
void MoveErrors(const std::uint16_t* from, const std::uint16_t* to, const std::uint8_t* indices,
                int width, std::uint16_t* errors) {
    constexpr int kStep = Vector::kCount < kPoint ? Vector::kCount : kPoint;
    for (int x = 0; x < width; ++x, errors += kPoint) {
        const int color = indices[x] * kPoint;
        for (int i = 0; i < kPoint; i += kStep) {
            if constexpr (kStep == kPoint) {
                const Vector moved =
                    Vector::LoadPoint(to + color) - Vector::LoadPoint(from + color);
                (Vector::LoadPoint(errors) + moved).StorePoint(errors);
            } else {
                const Vector moved = Vector::Load(to + color + i) - Vector::Load(from + color + i);
                (Vector::Load(errors + i) + moved).Store(errors + i);
            }
        }
    }
    Vector::End();
}

template <class Vector>
void BlurAlong(const std::uint16_t* errors, int width, std::uint16_t* along) {
    const std::uint16_t* const end = errors + width * kPoint;
    for (; errors < end; errors += Vector::kCount, along += Vector::kCount) {
        const Vector inner = Vector::Load(errors - kPoint) + Vector::Load(errors + kPoint);
        const Vector outer = Vector::Load(errors - 2 * kPoint) + Vector::Load(errors + 2 * kPoint);
        const Vector own = Vector::Load(errors);
        const Vector twice = inner + own;
        (outer + own + twice + twice).template DownUnsigned<4>().Store(along);
    }
    Vector::End();
}

template <class Vector>
void BlurDown(const std::array<const std::uint16_t*, 5>& along, const std::uint16_t* errors,
              int width, int ownWeight, std::uint16_t* field) {
    const typename Vector::Eighths weight(ownWeight);
    const std::uint16_t* const a = along[0];
    const std::uint16_t* const b = along[1];
    const std::uint16_t* const c = along[2];
    const std::uint16_t* const d = along[3];
    const std::uint16_t* const e = along[4];
    for (int at = 0; at < width * kPoint; at += Vector::kCount) {
        const Vector middle = Vector::Load(c + at);
        const Vector inner = Vector::Load(b + at) + Vector::Load(d + at) + middle;
        const Vector outer = Vector::Load(a + at) + Vector::Load(e + at) + middle;
        (outer + inner + inner + weight.Of(Vector::Load(errors + at))).Store(field + at);
    }
    Vector::End();
}

}  // namespace vistrel::loops
