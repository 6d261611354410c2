#include "core/found_sets.h"

#include <algorithm>

#include "platform/characters.h"

namespace vistrel::core {
namespace {

/// Both in capitals. A text may begin where a character does, and not between its two bytes.
bool Holds(const std::string& name, const std::string& text) {
    for (std::size_t at = 0; at + text.size() <= name.size();
         at += platform::CharacterLength(name, at))
        if (name.compare(at, text.size(), text) == 0) return true;
    return false;
}

}  // namespace

SetOrder NextOrder(SetOrder order) {
    switch (order) {
        case SetOrder::Folder:
            return SetOrder::Name;
        case SetOrder::Name:
            return SetOrder::NameBackwards;
        default:
            return SetOrder::Folder;
    }
}

std::vector<std::string> FoundSets(const std::vector<std::string>& sets, const std::string& text,
                                   SetOrder order) {
    const std::string wanted = platform::InCapitals(text);
    std::vector<std::string> found;
    for (const std::string& name : sets)
        if (wanted.empty() || Holds(platform::InCapitals(name), wanted)) found.push_back(name);
    if (order == SetOrder::Name)
        std::stable_sort(found.begin(), found.end(), platform::ComesBefore);
    if (order == SetOrder::NameBackwards)
        std::stable_sort(found.begin(), found.end(),
                         [](const auto& a, const auto& b) { return platform::ComesBefore(b, a); });
    return found;
}

}  // namespace vistrel::core
