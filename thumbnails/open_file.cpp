#include "thumbnails/open_file.h"

#include "platform/fault.h"

namespace vistrel::thumbnails {

using platform::fault::ShouldFail;

OpenFile::OpenFile(const std::string& path, const char* mode) {
    if (ShouldFail()) return;
    file_.reset(std::fopen(path.c_str(), mode));
    // Whole pieces come and go: a buffer would only copy them, and hide a disk that is full.
    if (file_) std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

bool OpenFile::GoTo(std::size_t place) const {
    return file_ && !ShouldFail() &&
           std::fseek(file_.get(), static_cast<long>(place), SEEK_SET) == 0;
}

std::size_t OpenFile::ReadAt(std::size_t place, std::span<std::uint8_t> bytes) const {
    return GoTo(place) ? std::fread(bytes.data(), 1, bytes.size(), file_.get()) : 0;
}

bool OpenFile::WriteAt(std::size_t place, std::span<const std::uint8_t> bytes) const {
    return GoTo(place) && std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
}

}  // namespace vistrel::thumbnails
