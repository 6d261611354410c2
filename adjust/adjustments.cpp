#include "adjust/adjustments.h"

#include <algorithm>

#include "core/generali.h"

namespace vistrel::adjust {
namespace {

bool SamePath(const std::string& path, const std::string& other) {
    return core::UpperCase(path) == core::UpperCase(other);
}

Adjustment FreshOf(const std::string& picture) {
    Adjustment fresh;
    fresh.source = picture;
    return fresh;
}

}  // namespace

void Adjustments::Remember(const std::string& screen, const Adjustment& adjustment) {
    entries_.push_back({screen, adjustment, true});
}

void Adjustments::RememberConversion(const std::string& screen, const std::string& picture) {
    entries_.push_back({screen, FreshOf(PictureOf(picture)), false});
}

Adjustment Adjustments::For(const std::string& path) const {
    const auto found = std::find_if(entries_.rbegin(), entries_.rend(), [&](const Entry& entry) {
        return SamePath(entry.screen, path) ||
               (entry.byHand && SamePath(entry.adjustment.source, path));
    });
    return found != entries_.rend() ? found->adjustment : FreshOf(path);
}

std::string Adjustments::PictureOf(const std::string& path) const {
    for (const Entry& entry : entries_)
        if (SamePath(entry.screen, path)) return entry.adjustment.source;
    return path;
}

void Adjustments::Repoint(const std::function<std::string(const std::string& path)>& repointed) {
    for (Entry& entry : entries_) entry.adjustment.source = repointed(entry.adjustment.source);
}

}  // namespace vistrel::adjust
