#include "pictures/screen/merge_colors.h"

#include <algorithm>

namespace vistrel::screen {
namespace {

constexpr int kEntries = 256;

/// Colours that have become one: sums over their pixels.
struct Group {
    std::array<std::uint64_t, 3> sum{};
    std::uint64_t count = 0;
    std::vector<int> entries;

    ScreenColor Mean() const {
        ScreenColor mean;
        for (std::size_t c = 0; c < 3; ++c)
            mean[c] = static_cast<std::uint8_t>((sum[c] + count / 2) / count);
        return mean;
    }
};

int SquaredDistance(const ScreenColor& a, const ScreenColor& b) {
    int sum = 0;
    for (std::size_t c = 0; c < 3; ++c) sum += (a[c] - b[c]) * (a[c] - b[c]);
    return sum;
}

/// By how much the squared error over all pixels grows when both become one.
std::uint64_t LossOf(const Group& a, const Group& b) {
    const auto distance = static_cast<std::uint64_t>(SquaredDistance(a.Mean(), b.Mean()));
    return distance * a.count * b.count / (a.count + b.count);
}

void MergeNearest(std::vector<Group>& groups) {
    std::size_t first = 0, second = 1;
    std::uint64_t least = ~std::uint64_t{0};
    for (std::size_t a = 0; a < groups.size(); ++a) {
        for (std::size_t b = a + 1; b < groups.size(); ++b) {
            const std::uint64_t loss = LossOf(groups[a], groups[b]);
            if (loss >= least) continue;
            least = loss;
            first = a;
            second = b;
        }
    }
    Group& merged = groups[first];
    const Group& gone = groups[second];
    for (std::size_t c = 0; c < 3; ++c) merged.sum[c] += gone.sum[c];
    merged.count += gone.count;
    merged.entries.insert(merged.entries.end(), gone.entries.begin(), gone.entries.end());
    groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(second));
}

std::vector<Group> GroupsOf(const std::array<ScreenColor, 256>& palette,
                            const std::array<std::uint32_t, 256>& counts, int room) {
    std::vector<Group> groups;
    for (int i = 0; i < kEntries; ++i) {
        if (counts[i] == 0) continue;
        Group group{{}, counts[i], {i}};
        for (std::size_t c = 0; c < 3; ++c) group.sum[c] = std::uint64_t{palette[i][c]} * counts[i];
        groups.push_back(std::move(group));
    }
    while (groups.size() > static_cast<std::size_t>(room)) MergeNearest(groups);
    return groups;
}

}  // namespace

MergedColors MergeColors(const std::array<ScreenColor, 256>& palette,
                         const std::array<std::uint32_t, 256>& counts, int room) {
    MergedColors merged;
    merged.colors.assign(palette.begin(), palette.begin() + room);
    std::vector<bool> taken(room);
    std::vector<const Group*> homeless;
    const auto give = [&](const Group& group, int number) {
        taken[number] = true;
        merged.colors[number] = group.Mean();
        for (const int entry : group.entries)
            merged.entry[entry] = static_cast<std::uint8_t>(number);
    };
    const std::vector<Group> groups = GroupsOf(palette, counts, room);
    for (const Group& group : groups) {
        const int number = *std::min_element(group.entries.begin(), group.entries.end());
        if (number < room)
            give(group, number);
        else
            homeless.push_back(&group);
    }
    for (const Group* group : homeless)
        give(*group,
             static_cast<int>(std::find(taken.begin(), taken.end(), false) - taken.begin()));
    for (int i = 0; i < kEntries; ++i)
        if (counts[i] == 0) merged.entry[i] = NearestColor(merged.colors, palette[i]);
    return merged;
}

std::uint8_t NearestColor(const std::vector<ScreenColor>& colors, const ScreenColor& color) {
    const auto nearer = [&](const ScreenColor& a, const ScreenColor& b) {
        return SquaredDistance(a, color) < SquaredDistance(b, color);
    };
    return static_cast<std::uint8_t>(std::min_element(colors.begin(), colors.end(), nearer) -
                                     colors.begin());
}

}  // namespace vistrel::screen
