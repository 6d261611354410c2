#include "animate/live_movement.h"

namespace vistrel::animate {

std::optional<screen::IndexedScreen> LiveMovement::Quick(const Document& document) {
    if (document.byHand) return document.byHand;
    if (!still_) return Finished(document);
    return screen::Compose(document.picture, *still_);
}

std::optional<screen::IndexedScreen> LiveMovement::Finished(const Document& document) {
    if (document.byHand) {
        // What stands may be another now.
        still_.reset();
        return document.byHand;
    }
    still_ = screen::ReduceStill(document.picture);
    if (!still_) return std::nullopt;
    return screen::Compose(document.picture, *still_);
}

}  // namespace vistrel::animate
