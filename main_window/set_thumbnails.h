// The pictures of the list of sets, seen as thumbnails: each is made when its set comes into sight,
// while the user does nothing.
#pragma once

#include <functional>
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
    /// done.
    SetThumbnails(controls::ListView& list, controls::Timer& idle,
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
    };

    std::vector<Ready>::iterator Find(const std::string& set);
    void MakeWhatIsSeen();
    void Make(const std::string& set);
    preview::ReadyPicture PictureOf(const std::string& set);

    controls::ListView& list_;
    controls::Timer& idle_;
    std::function<std::string(const std::string&)> screenOf_;
    thumbnails::Cache cache_;
    std::vector<Ready> ready_;  ///< the one painted last at the end
    std::vector<int> wanted_;   ///< items that were painted without
};

}  // namespace vistrel::main_window
