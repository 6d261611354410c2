// The screen that is made of a document, followed while the user changes it: what takes long is
// done when the hand rests.
#pragma once

#include <optional>

#include "animate/document.h"

namespace vistrel::animate {

class LiveMovement {
 public:
    /// At once: what stands has the colours of the last Finished. Empty when memory runs out.
    std::optional<screen::IndexedScreen> Quick(const Document& document);
    /// As it comes onto the disk. Empty when memory runs out.
    std::optional<screen::IndexedScreen> Finished(const Document& document);

 private:
    std::optional<screen::StillPart> still_;
};

}  // namespace vistrel::animate
