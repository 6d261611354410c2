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

SetThumbnails::SetThumbnails(controls::ListView& list, controls::Timer& idle, controls::Timer& rest,
                             std::function<std::string(const std::string&)> screenOf,
                             const std::string& cacheFile)
    : list_(list), idle_(idle), rest_(rest), screenOf_(std::move(screenOf)), cache_(cacheFile) {
    idle_.Tick = [this] { MakeWhatIsSeen(); };
    rest_.Tick = [this] { CompareScreens(); };
}

controls::Size SetThumbnails::SizeOf(int step) {
    const int width = kMiddleWidth + kStep * std::clamp(step, kSmallest, kLargest);
    return {width, width * 3 / 4};
}

void SetThumbnails::Forget() {
    ready_.clear();
    wanted_.clear();
    displayHasPalette_.reset();
}

std::vector<SetThumbnails::Ready>::iterator SetThumbnails::Find(const std::string& set) {
    return std::find_if(ready_.begin(), ready_.end(),
                        [&](const Ready& ready) { return ready.set == set; });
}

bool SetThumbnails::Paint(platform::DeviceContext target, int index, controls::Point at) {
    const std::string set = list_.ItemText(index);
    auto found = Find(set);
    // Whoever goes on scrolling does not wait for the disk.
    if (found == ready_.end() && !controls::InputIsWaiting()) found = TakeKept(set);
    if (found == ready_.end()) {
        if (std::find(wanted_.begin(), wanted_.end(), index) == wanted_.end())
            wanted_.push_back(index);
        // The rest of what is in sight is painted before that.
        if (!idle_.Enabled()) idle_.TickSoon();
        return false;
    }
    std::rotate(found, found + 1, ready_.end());
    Ready& ready = ready_.back();
    ready.index = index;
    if (ready.stamp && !rest_.Enabled()) rest_.SetEnabled(true);
    return ready.picture.Paint(target, at.x, at.y);
}

std::vector<SetThumbnails::Ready>::iterator SetThumbnails::TakeKept(const std::string& set) {
    const auto kept = cache_.FindOfPath(screenOf_(set));
    const controls::Size size = list_.PictureSize();
    if (!kept || kept->picture.width != size.width || kept->picture.height != size.height)
        return ready_.end();
    Add({set, ReadyOf(kept->picture), 0, kept->stamp});
    return ready_.end() - 1;
}

void SetThumbnails::Add(Ready ready) {
    ready_.push_back(std::move(ready));
    const auto most = static_cast<std::size_t>(2 * list_.PicturesInView() + kSpare);
    if (ready_.size() > most) ready_.erase(ready_.begin());
}

// One after the other, each painted at once, until the user does something: what was scrolled out
// of sight meanwhile is not read.
void SetThumbnails::MakeWhatIsSeen() {
    while (!wanted_.empty() && !controls::InputIsWaiting()) {
        const int index = wanted_.front();
        wanted_.erase(wanted_.begin());
        if (index >= list_.Count() || !list_.IsInView(index)) continue;
        const std::string set = list_.ItemText(index);
        if (Find(set) == ready_.end()) Add({set, PictureOf(set), index, std::nullopt});
        list_.RepaintItem(index);
    }
    idle_.SetEnabled(!wanted_.empty());
}

void SetThumbnails::CompareScreens() {
    const auto next = [this] {
        return std::find_if(ready_.begin(), ready_.end(),
                            [](const Ready& ready) { return ready.stamp.has_value(); });
    };
    rest_.SetEnabled(false);
    // Looked for anew each time: painting changes their order.
    for (auto ready = next(); ready != ready_.end(); ready = next()) {
        if (controls::InputIsWaiting()) {
            rest_.SetEnabled(true);
            return;
        }
        Compare(*ready);
    }
}

void SetThumbnails::Compare(Ready& ready) {
    const auto source = SourceOf(ready.set);
    const bool isTheSame = source && source->Stamp() == ready.stamp;
    ready.stamp.reset();
    if (isTheSame) return;
    ready.picture = PictureOf(ready.set);
    const int index = ready.index;
    if (index < list_.Count() && list_.ItemText(index) == ready.set && list_.IsInView(index))
        list_.RepaintItem(index);
}

/// Empty when there is no such file.
std::optional<thumbnails::Source> SetThumbnails::SourceOf(const std::string& set) const {
    thumbnails::Source source{screenOf_(set)};
    const bool isThere =
        platform::ForEachEntry(source.path, [&](const platform::FolderEntry& entry) {
            source.modified = entry.modified;
            source.size = entry.size;
            return false;
        });
    if (!isThere) return std::nullopt;
    return source;
}

preview::ReadyPicture SetThumbnails::PictureOf(const std::string& set) {
    const auto source = SourceOf(set);
    const controls::Size size = list_.PictureSize();
    const auto picture =
        source ? thumbnails::ThumbnailOf(*source, cache_, size.width, size.height) : std::nullopt;
    if (picture) return ReadyOf(*picture);
    // Nor is one shown that was kept before.
    cache_.Drop(screenOf_(set));
    return {};
}

preview::ReadyPicture SetThumbnails::ReadyOf(const pictures::RgbPicture& picture) {
    if (!displayHasPalette_) displayHasPalette_ = controls::DisplayHasPalette();
    return preview::ReadyPicture(picture, *displayHasPalette_);
}

}  // namespace vistrel::main_window
