// What was adjusted or converted while the Logo browser is open: each screen's picture and
// settings.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adjust/adjustment.h"

namespace vistrel::adjust {

class Adjustments {
 public:
    /// The file `screen` was made by an adjustment.
    void Remember(const std::string& screen, const Adjustment& adjustment);
    /// The file `screen` was made of a picture with nothing set.
    void RememberConversion(const std::string& screen, const std::string& picture);

    /// What to begin with when `path` is to be adjusted. Of a screen that was made here: the
    /// picture that it was made of, as it was set. Of a picture: as it was set last. Of any other
    /// file: nothing set.
    Adjustment For(const std::string& path) const;

    /// The picture that a screen was made of; any other path itself.
    std::string PictureOf(const std::string& path) const;

    /// Gives each picture the path that `repointed` says it has now.
    void Repoint(const std::function<std::string(const std::string& path)>& repointed);

 private:
    struct Entry {
        std::string screen;
        Adjustment adjustment;
        bool byHand;  ///< and not by a conversion
    };
    std::vector<Entry> entries_;  ///< the latest last
};

}  // namespace vistrel::adjust
