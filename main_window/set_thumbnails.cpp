#include "main_window/set_thumbnails.h"

#include <algorithm>
#include <utility>

#include "controls/message_loop.h"
#include "platform/files.h"
#include "thumbnails/thumbnail.h"

namespace vistrel::main_window {
namespace {

constexpr int kMiddleWidth = 96;
constexpr int kStep = 16;
/// As many as fill the list twice are kept ready, and some that are seen in part.
constexpr int kSpare = 16;

}  // namespace

SetThumbnails::SetThumbnails(controls::ListView& list, controls::Timer& idle,
                             std::function<std::string(const std::string&)> screenOf,
                             const std::string& cacheFile)
    : list_(list), idle_(idle), screenOf_(std::move(screenOf)), cache_(cacheFile) {
    idle_.Tick = [this] { MakeWhatIsSeen(); };
}

controls::Size SetThumbnails::SizeOf(int step) {
    const int width = kMiddleWidth + kStep * std::clamp(step, kSmallest, kLargest);
    return {width, width * 3 / 4};
}

void SetThumbnails::Forget() {
    ready_.clear();
    wanted_.clear();
}

std::vector<SetThumbnails::Ready>::iterator SetThumbnails::Find(const std::string& set) {
    return std::find_if(ready_.begin(), ready_.end(),
                        [&](const Ready& ready) { return ready.set == set; });
}

bool SetThumbnails::Paint(platform::DeviceContext target, int index, controls::Point at) {
    const auto found = Find(list_.ItemText(index));
    if (found == ready_.end()) {
        if (std::find(wanted_.begin(), wanted_.end(), index) == wanted_.end())
            wanted_.push_back(index);
        // The rest of what is in sight is painted before that.
        if (!idle_.Enabled()) idle_.TickSoon();
        return false;
    }
    std::rotate(found, found + 1, ready_.end());
    return ready_.back().picture.Paint(target, at.x, at.y);
}

// One after the other, each painted at once, until the user does something: what was scrolled out
// of sight meanwhile is not read.
void SetThumbnails::MakeWhatIsSeen() {
    while (!wanted_.empty() && !controls::InputIsWaiting()) {
        const int index = wanted_.front();
        wanted_.erase(wanted_.begin());
        if (index >= list_.Count() || !list_.IsInView(index)) continue;
        const std::string set = list_.ItemText(index);
        if (Find(set) == ready_.end()) Make(set);
        list_.RepaintItem(index);
    }
    idle_.SetEnabled(!wanted_.empty());
}

void SetThumbnails::Make(const std::string& set) {
    ready_.push_back({set, PictureOf(set)});
    const auto most = static_cast<std::size_t>(2 * list_.PicturesInView() + kSpare);
    if (ready_.size() > most) ready_.erase(ready_.begin());
}

preview::ReadyPicture SetThumbnails::PictureOf(const std::string& set) {
    thumbnails::Source source{screenOf_(set)};
    const bool isThere =
        platform::ForEachEntry(source.path, [&](const platform::FolderEntry& entry) {
            source.modified = entry.modified;
            source.size = entry.size;
            return false;
        });
    const controls::Size size = list_.PictureSize();
    const auto picture =
        isThere ? thumbnails::ThumbnailOf(source, cache_, size.width, size.height) : std::nullopt;
    return picture ? preview::ReadyPicture(*picture) : preview::ReadyPicture();
}

}  // namespace vistrel::main_window
