#include "core/rotation.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "core/generali.h"
#include "core/mdl_registry.h"
#include "core/settings.h"

namespace vistrel::core {
namespace {

constexpr char kBetweenNames = '/';
constexpr const char* kRoundValue = "ShuffleRound";

bool IsSame(const std::string& name, const std::string& other) {
    return UpperCase(name) == UpperCase(other);
}

/// Where a set stands in the order of a round.
struct Place {
    std::uint32_t sum;
    const std::string* name;

    bool operator<(const Place& other) const {
        return sum != other.sum ? sum < other.sum : *name < *other.name;
    }
};

/// Fowler, Noll and Vo's sum of the name, from the round's seed on, with its bits well mixed.
Place PlaceOf(const std::string& name, std::uint32_t seed) {
    std::uint32_t sum = 2166136261u ^ seed;
    for (const char c : name) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
    sum = (sum ^ (sum >> 16)) * 0x85EBCA6Bu;
    sum = (sum ^ (sum >> 13)) * 0xC2B2AE35u;
    return {sum ^ (sum >> 16), &name};
}

}  // namespace

LeftOutSets::LeftOutSets(const std::string& text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(kBetweenNames, at), text.size());
        if (end > at) names_.push_back(text.substr(at, end - at));
        at = end + 1;
    }
}

bool LeftOutSets::Holds(const std::string& name) const {
    return std::any_of(names_.begin(), names_.end(),
                       [&](const std::string& other) { return IsSame(name, other); });
}

std::string LeftOutSets::Text() const {
    std::string text;
    for (const std::string& name : names_) {
        if (!text.empty()) text += kBetweenNames;
        text += name;
    }
    return text;
}

void LeftOutSets::Rename(const std::string& from, const std::string& to) {
    for (std::string& name : names_)
        if (IsSame(name, from)) name = to;
}

void LeftOutSets::Remove(const std::string& name) {
    std::erase_if(names_, [&](const std::string& other) { return IsSame(name, other); });
}

void RenameLeftOut(Settings& settings, const std::string& from, const std::string& to) {
    LeftOutSets leftOut(settings.leftOutOfRotation);
    leftOut.Rename(from, to);
    settings.leftOutOfRotation = leftOut.Text();
}

void RemoveLeftOut(Settings& settings, const std::string& name) {
    LeftOutSets leftOut(settings.leftOutOfRotation);
    leftOut.Remove(name);
    settings.leftOutOfRotation = leftOut.Text();
}

ShuffleRound::ShuffleRound(const std::string& text) {
    const std::size_t end = text.find(kBetweenNames);
    if (end == std::string::npos || end == 0 || end > 9) return;
    for (std::size_t i = 0; i < end; ++i) {
        if (text[i] < '0' || text[i] > '9') return;
    }
    seed_ = static_cast<unsigned>(std::stoul(text.substr(0, end)));
    last_ = text.substr(end + 1);
}

std::string ShuffleRound::Text() const { return std::to_string(seed_) + kBetweenNames + last_; }

/// The first behind the last one, but for one of them; null when there is none.
const std::string* ShuffleRound::First(const std::vector<std::string>& sets,
                                       const std::string& besides) const {
    const Place last = PlaceOf(last_, seed_);
    std::optional<Place> first;
    for (const std::string& set : sets) {
        const Place place = PlaceOf(set, seed_);
        if (set == besides || (!last_.empty() && !(last < place))) continue;
        if (!first || place < *first) first = place;
    }
    return first ? first->name : nullptr;
}

std::string ShuffleRound::Next(const std::vector<std::string>& sets, const std::string& installed,
                               RandomGenerator& generator) {
    if (sets.size() == 1) {
        last_ = sets.front();
        return last_;
    }
    const std::string* next = seed_ == 0 ? nullptr : First(sets, installed);
    // A round whose first set is the installed one would show it twice.
    while (!next) {
        seed_ = static_cast<unsigned>(generator.Next() * 999999998) + 1;
        last_.clear();
        next = First(sets, "");
        if (*next == installed) next = nullptr;
    }
    last_ = *next;
    return last_;
}

ShuffleRound StoredShuffleRound() {
    return ShuffleRound(
        CutAtNul(TextOf(QueryValue(platform::Hive::LocalMachine, kSettingsKey, kRoundValue))));
}

bool StoreShuffleRound(const ShuffleRound& round) {
    return SetKeyValue(platform::Hive::LocalMachine, kSettingsKey, kRoundValue, round.Text(),
                       platform::kRegistryText) == 0;
}

}  // namespace vistrel::core
