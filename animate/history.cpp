#include "animate/history.h"

#include <utility>

namespace vistrel::animate {
namespace {

/// More steps than a hand goes back.
constexpr std::size_t kMostSteps = 100;

/// What `last` holds when it is the same.
template <typename Value>
std::shared_ptr<const Value> Shared(const Value& now, const std::shared_ptr<const Value>& last) {
    return last && *last == now ? last : std::make_shared<const Value>(now);
}

}  // namespace

History::Kept History::Keep(const Document& document) const {
    Kept kept;
    kept.base = Shared(document.picture.base, latest_.base);
    kept.original = Shared(document.picture.original, latest_.original);
    kept.byHand = Shared(document.byHand, latest_.byHand);
    for (const screen::Layer& layer : document.picture.layers) {
        const std::size_t place = kept.layers.size();
        kept.layers.push_back(
            Shared(layer, place < latest_.layers.size() ? latest_.layers[place] : nullptr));
    }
    kept.ring = document.picture.ring;
    kept.ground = document.picture.ground;
    kept.areaColors = document.areaColors;
    kept.selected = document.selected;
    return kept;
}

Document History::Made(const Kept& kept) {
    Document document;
    document.picture.base = *kept.base;
    document.picture.original = *kept.original;
    document.byHand = *kept.byHand;
    for (const auto& layer : kept.layers) document.picture.layers.push_back(*layer);
    document.picture.ring = kept.ring;
    document.picture.ground = kept.ground;
    document.areaColors = kept.areaColors;
    document.selected = kept.selected;
    return document;
}

void History::Remember(const Document& document) {
    before_.push_back(latest_ = Keep(document));
    if (before_.size() > kMostSteps) before_.erase(before_.begin());
    after_.clear();
}

void History::Exchange(Document& document, std::vector<Kept>& from, std::vector<Kept>& to) {
    to.push_back(Keep(document));
    latest_ = std::move(from.back());
    from.pop_back();
    document = Made(latest_);
}

void History::Undo(Document& document) {
    if (CanUndo()) Exchange(document, before_, after_);
}

void History::Redo(Document& document) {
    if (CanRedo()) Exchange(document, after_, before_);
}

}  // namespace vistrel::animate
