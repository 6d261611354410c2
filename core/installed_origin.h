// Which sets of the library the installed screens are of.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/install.h"

namespace vistrel::core {

/// Compares the installed screens with those of the sets, by size and then byte by byte, some sets
/// at a time: a library of thousands takes a while.
class InstalledOrigin {
 public:
    /// Of several `sets` with the same screens the first is named.
    InstalledOrigin(InstallTargets targets, std::vector<std::string> sets);

    /// Compares sets for about so long, one at least. False when there is nothing more to compare.
    bool CompareFor(double seconds);

    /// How many of the sets have been compared, and how many there are.
    std::size_t Compared() const { return next_; }
    std::size_t Count() const { return sets_.size(); }

    /// "Installed: City Lights", or "Startup screen of City Lights, shutdown screen of none", as
    /// far as has been compared. A screen that is not installed is not spoken of.
    std::string Sentence() const;

 private:
    /// Bit i stands for screen i.
    using Screens = unsigned;
    struct Match {
        std::string source;
        Screens screens;
    };

    bool IsDone() const { return next_ == sets_.size() || !whole_.empty(); }
    void CompareNext();
    Screens AlikeIn(const std::string& file, int screen) const;
    Screens AlikeInLibrary();
    std::array<std::string, 3> Sources() const;

    InstallTargets targets_;
    std::array<std::string, 3> installed_;
    std::array<std::optional<std::uint64_t>, 3> sizes_;  ///< of those that are installed
    Screens present_ = 0;                                ///< which these are
    std::vector<std::string> sets_;
    std::size_t next_ = 0;
    std::optional<Screens> alikeInLibrary_;  ///< of what all single-logo sets share
    std::vector<Match> matches_;
    std::string whole_;  ///< the set that has just the screens that are installed, and no others
};

}  // namespace vistrel::core
