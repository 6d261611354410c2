// Makes logo sets of many pictures, one picture after another, so that whoever does it can show how
// far it is and stop in between.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/logo_set.h"
#include "pictures/compose/composition.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::core {

class PictureSets {
 public:
    /// `library` is the logo folder and ends in a backslash; `pictures` are paths. Each becomes a
    /// startup-only set of its own, or three at a time a complete one, of which the last may lack
    /// screens.
    PictureSets(std::string library, std::vector<std::string> pictures, SetKind kind,
                compose::FramingKind framing);

    bool IsDone() const { return next_ == pictures_.size(); }
    /// How many pictures have been seen to.
    std::size_t Done() const { return next_; }

    /// Sees to the next picture, and writes the set when it was its last. A set that cannot be
    /// written, because the disk is full, leaves nothing behind and ends it all.
    void Next();
    /// Goes no further. Pictures that are not in a set yet stay out.
    void Stop();

    /// The names of the sets, in the order of making.
    const std::vector<std::string>& Made() const { return made_; }
    /// The pictures that cannot be read.
    const std::vector<std::string>& NotRead() const { return notRead_; }
    /// The pictures whose set could not be written, and all behind these.
    const std::vector<std::string>& NotWritten() const { return notWritten_; }

 private:
    struct Screen {
        std::string picture;
        screen::IndexedScreen screen;
    };

    std::size_t ScreensOfASet() const;
    std::string NameOfNext() const;
    void WriteSet();
    bool MakeSet(const std::string& name) const;
    bool WriteScreens(const std::string& folder) const;

    std::string library_;
    std::vector<std::string> pictures_;
    SetKind kind_;
    compose::Composition composition_;
    std::size_t next_ = 0;
    std::vector<Screen> screens_;  ///< of the next set
    std::vector<std::string> made_;
    std::vector<std::string> notRead_;
    std::vector<std::string> notWritten_;
};

}  // namespace vistrel::core
