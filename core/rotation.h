// Which sets take part when Rotaline and Shufflet change the set at each start of Windows, and the
// rounds of Shufflet, in which each of them comes once.
#pragma once

#include <string>
#include <vector>

#include "core/random_choice.h"

namespace vistrel::core {

struct Settings;

/// The names of sets that take no part, as they are kept in the settings: parted by a character
/// that no folder's name can hold.
class LeftOutSets {
 public:
    explicit LeftOutSets(const std::string& text);
    explicit LeftOutSets(std::vector<std::string> names) : names_(std::move(names)) {}

    /// Whatever the case.
    bool Holds(const std::string& name) const;
    std::string Text() const;

    void Rename(const std::string& from, const std::string& to);
    void Remove(const std::string& name);

 private:
    std::vector<std::string> names_;
};

/// A set of the settings has another name now, or is deleted: a new one of its name takes part.
void RenameLeftOut(Settings& settings, const std::string& from, const std::string& to);
void RemoveLeftOut(Settings& settings, const std::string& name);

/// A round of Shufflet: all sets in an order of chance, and how far it has come. It is kept from
/// one start to the next as a text; sets that come or go meanwhile are no trouble.
class ShuffleRound {
 public:
    /// `text` is that of a former round; any other begins a new one.
    explicit ShuffleRound(const std::string& text);

    /// The next of `sets`, of which there is at least one, other than `installed` unless that is
    /// the only one. When all have had their turn a new round begins.
    std::string Next(const std::vector<std::string>& sets, const std::string& installed,
                     RandomGenerator& generator);

    std::string Text() const;

 private:
    const std::string* First(const std::vector<std::string>& sets,
                             const std::string& besides) const;

    unsigned seed_ = 0;  ///< 0 for no round
    std::string last_;   ///< the set whose turn was last; empty before the first
};

/// The round that is stored among the settings, and storing one. False when it could not be.
ShuffleRound StoredShuffleRound();
bool StoreShuffleRound(const ShuffleRound& round);

}  // namespace vistrel::core
