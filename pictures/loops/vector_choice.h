// The choice of colours by vectors that hold at least a point.
#pragma once

#include "pictures/loops/loops.h"

namespace vistrel::loops {

/// What a pixel's field is to be compared with, for all pixels of a row.
template <class Vector>
class ChoiceByVectors {
 public:
    explicit ChoiceByVectors(const ChoiceRow& row) : row_(row), ownWeight_(row.ownWeight) {
        // The fourth number of a point counts pixels.
        const auto none = static_cast<std::uint16_t>(NoField(row.ownWeight));
        const auto one = static_cast<std::uint16_t>(none - 1);
        const std::uint16_t noField[8] = {none, none, none, one, none, none, none, one};
        none_ = Vector::Load(noField);
    }

    template <bool kSums>
    void Run() {
        // In variables: the compiler must take it that writing indices may change members.
        std::uint8_t* const indices = row_.indices;
        const Alternatives* const alternatives = row_.alternatives;
        FieldSum* const sums = row_.sums;
        const Vector none = none_;
        const int width = row_.width;
        std::uint16_t* field = row_.field;
        for (int i = 0; i < width; ++i, field += kPoint) {
            int color = indices[i];
            Vector here = Vector::LoadPoint(field) - none;
            const Alternatives& others = alternatives[color];
            const std::uint32_t squared = here.TimesSummed(here).PointSum() - 1;
            if (squared > others.harmless) {
                const int best = Best(others, here, squared);
                if (best >= 0) {
                    row_.changed->Add(i);
                    color = others.color[best];
                    here = here + Change(i, color, field);
                }
            }
            if constexpr (kSums) Count(here, sums[color]);
        }
        Vector::End();
    }

 private:
    static constexpr int kAtOnce = Vector::kCount / 2;

    /// What taking some of the alternatives, from the k-th on, would add to the sum.
    static Vector Weighed(const Alternatives& others, int k, Vector xy, Vector z) {
        return Vector::Load(&others.half[k])
            .AddWide(Vector::Load(&others.xy[2 * k]).TimesSummed(xy))
            .AddWide(Vector::Load(&others.z[2 * k]).TimesSummed(z));
    }

    /// The same for half of the alternatives; returns what is below 0 where one of them is.
    [[gnu::always_inline]] static Vector WeighHalf(const Alternatives& others, int first, Vector xy,
                                                   Vector z, std::int32_t* change) {
        Vector any = Weighed(others, first, xy, z);
        any.Store(change + first);
        if constexpr (kAtOnce < Alternatives::kMost / 2) {
            const Vector more = Weighed(others, first + kAtOnce, xy, z);
            more.Store(change + first + kAtOnce);
            any = any | more;
        }
        return any;
    }

    [[gnu::always_inline]] static int Best(const Alternatives& others, Vector here,
                                           std::uint32_t squared) {
        constexpr int kHalf = Alternatives::kMost / 2;
        const Vector xy = here.FirstPair();
        const Vector z = here.SecondPair();
        // The farther half can only matter where the field is strong.
        const int count = squared > others.enough[kHalf] ? 2 * kHalf : kHalf;
        std::int32_t change[Alternatives::kMost];
        Vector any = WeighHalf(others, 0, xy, z, change);
        if (count > kHalf) any = any | WeighHalf(others, kHalf, xy, z, change);
        if (!any.AnyWideNegative()) return -1;
        int best = -1;
        std::int32_t least = 0;
        for (int k = 0; k < count; ++k) {
            if (change[k] < least) {
                least = change[k];
                best = k;
            }
        }
        return best;
    }

    /// Gives a pixel its new colour. Returns what the change adds to the field there.
    Vector Change(int i, int color, std::uint16_t* field) {
        const Vector d = Vector::LoadPoint(row_.colors + color * kPoint) -
                         Vector::LoadPoint(row_.colors + row_.indices[i] * kPoint);
        row_.indices[i] = static_cast<std::uint8_t>(color);
        std::uint16_t* const error = row_.errors + i * kPoint;
        (Vector::LoadPoint(error) + d).StorePoint(error);
        const Vector half = Vector::All(8);
        const Vector three = d + d + d;
        Grow(field + kPoint, (three + three + half).template Down<4>());
        Grow(field + 2 * kPoint, (three + half).template Down<4>());
        return (three + three + three + half).template Down<4>() + ownWeight_.OfSigned(d);
    }

    static void Grow(std::uint16_t* field, Vector by) {
        (Vector::LoadPoint(field) + by).StorePoint(field);
    }

    static void Count(Vector here, FieldSum& sum) {
        const std::int16_t even[8] = {1, 0, 1, 0, 1, 0, 1, 0};
        const std::int16_t odd[8] = {0, 1, 0, 1, 0, 1, 0, 1};
        Vector::LoadPoint(&sum.x)
            .AddWide(here.TimesSummed(Vector::LoadPoint(even)))
            .StorePoint(&sum.x);
        Vector::LoadPoint(&sum.y)
            .AddWide(here.TimesSummed(Vector::LoadPoint(odd)))
            .StorePoint(&sum.y);
    }

    const ChoiceRow& row_;
    const typename Vector::Eighths ownWeight_;
    Vector none_;
};

template <class Vector>
void ChooseByVectors(const ChoiceRow& row) {
    ChoiceByVectors<Vector> choice(row);
    row.sums ? choice.template Run<true>() : choice.template Run<false>();
}

}  // namespace vistrel::loops
