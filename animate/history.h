// What a user did to a screen, to be undone and done again.
#pragma once

#include <memory>
#include <vector>

#include "animate/document.h"

namespace vistrel::animate {

class History {
 public:
    /// Keeps the document as it is before a change. What was undone is forgotten.
    void Remember(const Document& document);
    bool CanUndo() const { return !before_.empty(); }
    bool CanRedo() const { return !after_.empty(); }
    /// Brings back what was remembered last; the document as it is now can be had back by Redo.
    void Undo(Document& document);
    void Redo(Document& document);

 private:
    /// A document of parts that several of them share: a picture takes half a megabyte.
    struct Kept {
        std::shared_ptr<const screen::IndexedScreen> base;
        std::shared_ptr<const std::optional<pictures::RgbPicture>> original;
        std::shared_ptr<const std::optional<screen::IndexedScreen>> byHand;
        std::vector<std::shared_ptr<const screen::Layer>> layers;
        screen::Ring ring;
        std::optional<screen::ScreenColor> ground;
        bool areaColors = false;
        std::size_t selected = 0;
    };

    Kept Keep(const Document& document) const;
    static Document Made(const Kept& kept);
    void Exchange(Document& document, std::vector<Kept>& from, std::vector<Kept>& to);

    std::vector<Kept> before_;  ///< the latest last
    std::vector<Kept> after_;
    Kept latest_;  ///< what was kept last: parts that are the same are taken from there
};

}  // namespace vistrel::animate
