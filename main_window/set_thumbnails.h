// The pictures of the list of sets, seen as thumbnails. One that is kept is shown at once, and its
// screen looked at when the hand rests: it may be another by now. Any other is made when its set
// comes into sight, while the user does nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/list_view.h"
#include "controls/timer.h"
#include "pictures/preview/ready_picture.h"
#include "thumbnails/cache.h"

namespace vistrel::main_window {

/// The key of the icon that marks the installed set.
inline constexpr const char* kInstalledMark = "installed";

class SetThumbnails {
 public:
    /// `screenOf` tells the startup screen of the set of a name; `idle` ticks when all else is
    /// done, `rest` when nothing has been done for a moment.
    SetThumbnails(controls::ListView& list, controls::Timer& idle, controls::Timer& rest,
                  std::function<std::string(const std::string& set)> screenOf,
                  const std::string& cacheFile);

    /// Paints the picture of an item; false when there is none, or none yet, which then follows.
    bool Paint(platform::DeviceContext target, int index, controls::Point at);
    /// The size `step` steps from the middle one, which is 0.
    static controls::Size SizeOf(int step);
    static constexpr int kLargest = 2;
    static constexpr int kSmallest = -2;
    /// What is painted next is looked up anew: screens, their size or the display's colours may be
    /// others by now.
    void Forget();

 private:
    struct Ready {
        std::string set;
        preview::ReadyPicture picture;
        int index = 0;  ///< where it was painted
        /// Of the screen that it was made of, while nobody has looked whether it is still that one.
        std::optional<std::uint64_t> stamp;
    };

    std::vector<Ready>::iterator Find(const std::string& set);
    std::vector<Ready>::iterator TakeKept(const std::string& set);
    void Add(Ready ready);
    void MakeWhatIsSeen();
    void CompareScreens();
    void Compare(Ready& ready);
    std::optional<thumbnails::Source> SourceOf(const std::string& set) const;
    preview::ReadyPicture PictureOf(const std::string& set);
    preview::ReadyPicture ReadyOf(const pictures::RgbPicture& picture);

    controls::ListView& list_;
    controls::Timer& idle_;
    controls::Timer& rest_;
    std::function<std::string(const std::string&)> screenOf_;
    thumbnails::Cache cache_;
    std::vector<Ready> ready_;  ///< the one painted last at the end
    std::vector<int> wanted_;   ///< items that were painted without
    std::optional<bool> displayHasPalette_;
};

}  // namespace vistrel::main_window
