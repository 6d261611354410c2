#include "core/found_sets.h"

#include <algorithm>
#include <utility>

#include "core/library.h"
#include "platform/characters.h"
#include "platform/file_time.h"

namespace vistrel::core {
namespace {

/// Both in capitals. A text may begin where a character does, and not between its two bytes.
bool Holds(const std::string& name, const std::string& text) {
    for (std::size_t at = 0; at + text.size() <= name.size();
         at += platform::CharacterLength(name, at))
        if (name.compare(at, text.size(), text) == 0) return true;
    return false;
}

/// What sets are sorted by, but for their names.
std::uint64_t KeyOf(const SetDetails& details, SetColumn column) {
    switch (column) {
        case SetColumn::Screens:
            return static_cast<std::uint64_t>(details.Screens());
        case SetColumn::MovingColors:
            return static_cast<std::uint64_t>(details.movingColors);
        case SetColumn::Date:
            return details.modified;
        default:
            return details.size;
    }
}

/// `comesBefore` compares what `keyOf` gives of a set; both may be costly.
template <class KeyOfSet, class ComesBefore>
void SortBy(std::vector<std::string>& sets, bool backwards, KeyOfSet keyOf,
            ComesBefore comesBefore) {
    std::vector<std::pair<decltype(keyOf(sets.front())), std::string>> rows;
    rows.reserve(sets.size());
    for (std::string& name : sets) {
        auto key = keyOf(name);
        rows.emplace_back(std::move(key), std::move(name));
    }
    std::stable_sort(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
        return backwards ? comesBefore(b.first, a.first) : comesBefore(a.first, b.first);
    });
    for (std::size_t i = 0; i < rows.size(); ++i) sets[i] = std::move(rows[i].second);
}

}  // namespace

std::string TextOfSet(const std::string& name, const SetDetails& details, SetColumn column) {
    constexpr std::uint64_t kKilobyte = 1024;
    switch (column) {
        case SetColumn::Name:
            return name;
        case SetColumn::Kind:
            return TypeCaptionOfSet(name);
        case SetColumn::Screens:
            return ScreensInWords(details);
        case SetColumn::MovingColors:
            return details.movingColors == 0 ? "" : std::to_string(details.movingColors);
        case SetColumn::Date:
            return platform::DayInWords(details.modified);
        case SetColumn::Size:
            break;
    }
    return std::to_string((details.size + kKilobyte - 1) / kKilobyte) + " KB";
}

SetOrder NextOrder(SetOrder order, SetColumn clicked) {
    if (order.by != clicked) return {clicked, false};
    if (!order.backwards) return {clicked, true};
    return {};
}

bool NeedsDetails(SetOrder order) {
    return order.by && order.by != SetColumn::Name && order.by != SetColumn::Kind;
}

std::vector<std::string> FoundSets(const std::vector<std::string>& sets, const std::string& text) {
    const std::string wanted = platform::InCapitals(text);
    std::vector<std::string> found;
    for (const std::string& name : sets)
        if (wanted.empty() || Holds(platform::InCapitals(name), wanted)) found.push_back(name);
    return found;
}

void SortSets(std::vector<std::string>& sets, SetOrder order,
              const std::function<const SetDetails&(const std::string& name)>& detailsOf) {
    if (!order.by) return;
    if (order.by == SetColumn::Name)
        SortBy(
            sets, order.backwards, [](const std::string& name) { return name; },
            platform::ComesBefore);
    else if (order.by == SetColumn::Kind)
        SortBy(sets, order.backwards, IsSingleLogoSet, std::less<bool>());
    else
        SortBy(
            sets, order.backwards,
            [&](const std::string& name) { return KeyOf(detailsOf(name), *order.by); },
            std::less<std::uint64_t>());
}

}  // namespace vistrel::core
