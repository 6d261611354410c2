#include "pictures/picture_file.h"

#include <algorithm>

namespace vistrel::pictures {

void PictureFile::Copy(std::size_t at, std::span<std::uint8_t> to) const {
    const std::size_t from = std::min(at, size_);
    const std::size_t there = std::min(to.size(), size_ - from);
    if (source_ == nullptr) {
        std::copy_n(memory_.data() + from, there, to.data());
    } else if (there > 0) {
        source_->Read(from, to.first(there));
    }
    std::fill(to.begin() + static_cast<std::ptrdiff_t>(there), to.end(), std::uint8_t{0});
}

FileBytes PictureFile::Piece(std::size_t at, std::size_t count,
                             std::vector<std::uint8_t>& room) const {
    if (source_ == nullptr) return memory_.subspan(at, count);
    room.resize(count);
    Copy(at, room);
    return room;
}

FileBytes FileWindow::From(std::size_t at, std::size_t least) {
    if (at >= size()) return {};
    const std::size_t wanted = std::min(least, size() - at);
    if (at < begin_ || at - begin_ + wanted > seen_.size()) MoveTo(at);
    return seen_.subspan(at - begin_);
}

void FileWindow::MoveTo(std::size_t at) {
    if (!file_.memory().empty()) {
        begin_ = 0;
        seen_ = file_.memory();
        return;
    }
    room_.resize(std::min(kRoom, size()));
    begin_ = at;
    seen_ = FileBytes(room_).first(std::min(room_.size(), size() - at));
    file_.Copy(at, std::span(room_).first(seen_.size()));
}

}  // namespace vistrel::pictures
