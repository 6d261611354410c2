// The screen that is made of a picture, followed while the user changes what is made: from a
// reduction of the picture that is read once, and with no stage run again that still holds.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "pictures/compose/stages.h"

namespace vistrel::adjust {

class LiveScreen {
 public:
    /// Reads the picture. False when it cannot be read; what was read before then stays.
    bool Read(const std::string& path);

    /// Of the file as it was read; see compose::ChecksumOfPicture.
    std::uint64_t Checksum() const { return read_->checksum; }
    /// What becomes of the picture's moving colours, where it is a screen that has such.
    enum class Movement { None, Kept, LostByFraming, LacksColors };
    Movement MovementOf(const compose::Composition& composition) const;
    pictures::PictureSize TurnedSize(const compose::Composition& composition) const;

    /// At once, in all its colours.
    pictures::RgbPicture Quick(const compose::Composition& composition);
    /// In its 256 colours, by the filter of conversions; for when the hand rests. Without memory
    /// for that it is as Quick gives it.
    pictures::RgbPicture Finished(const compose::Composition& composition);
    /// The same part of the picture without light, text and reduction.
    const pictures::RgbPicture& Original(const compose::Composition& composition);

 private:
    bool Holds(const compose::Composition& composition) const;
    void Keep(compose::Framed framed, const compose::Composition& composition, bool fine);

    std::optional<compose::Intermediate> read_;
    // The picture on the screen, and what it was framed by.
    std::optional<compose::Framed> framed_;
    compose::Orientation orientation_;
    compose::Framing framing_;
    bool fine_ = false;
};

}  // namespace vistrel::adjust
