// Takes the escape bytes out of a scan's coded data and finds the markers between them.
#include "pictures/jpg/entropy/bits.h"

#include <algorithm>
#include <cstring>

namespace vistrel::jpg {
namespace {

constexpr std::uint8_t kEscape = 0xFF;
constexpr std::uint8_t kFirstRestart = 0xD0;
constexpr std::uint8_t kFirstFrame = 0xC0;

bool IsRestart(std::uint8_t marker) {
    return marker >= kFirstRestart && marker < kFirstRestart + 8;
}

struct RestartPlace {
    std::size_t at;  // behind the marker; where there is none, at what comes in its place
    bool isThere;
};

// Finds restart marker number `expected` (0 to 7) at or after `at`.
RestartPlace FindRestart(pictures::FileWindow& file, std::size_t at, int expected) {
    for (;;) {
        at = FindMarker(file, at);
        if (at == file.size()) return {at, false};
        const std::uint8_t marker = file[at + 1];
        const int ahead = IsRestart(marker) ? (marker - kFirstRestart - expected) & 7 : -1;
        // A later one: this interval's data are lost.
        if (ahead == 1 || ahead == 2) return {at, false};
        if (ahead == -1 && marker >= kFirstFrame) return {at, false};
        at += 2;
        // One or two too low is left over from before; anything else is taken as the right one.
        if (ahead >= 0 && ahead < 6) return {at, true};
    }
}

}  // namespace

std::size_t FindMarker(pictures::FileWindow& file, std::size_t from) {
    for (;;) {
        const pictures::FileBytes seen = file.From(from, 2);
        if (seen.size() < 2) return file.size();
        // Of the last byte it is not known yet what follows.
        const void* const found = std::memchr(seen.data(), kEscape, seen.size() - 1);
        if (!found) {
            from += seen.size() - 1;
            continue;
        }
        const auto at =
            static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - seen.data());
        if (seen[at + 1] != 0 && seen[at + 1] != kEscape) return from + at;
        from += at + 1;
    }
}

ScanBytes::ScanBytes(const pictures::PictureFile& file, std::size_t start)
    : file_(file), filePosition_(std::min(start, file.size())) {
    Fill();
}

BitReader ScanBytes::Reader() const { return {0, 0, buffer_.data()}; }

BitReader ScanBytes::More(BitReader bits) {
    const std::ptrdiff_t read = bits.next - buffer_.data();
    const std::ptrdiff_t left = std::max<std::ptrdiff_t>(dataEnd_ - read, 0);
    std::memmove(buffer_.data(), bits.next, static_cast<std::size_t>(left));
    dataEnd_ -= read;
    bits.next = buffer_.data();
    Fill();
    return bits;
}

// Copies the runs between escapes; behind the last byte before a marker come zeros for one block.
void ScanBytes::Fill() {
    std::ptrdiff_t at = std::max<std::ptrdiff_t>(dataEnd_, 0);
    while (!atMarker_ && at < kWindow) {
        const pictures::FileBytes seen = file_.From(filePosition_);
        const std::size_t most = std::min(static_cast<std::size_t>(kWindow - at), seen.size());
        const std::uint8_t* from = seen.data();
        const void* escape = most ? std::memchr(from, kEscape, most) : nullptr;
        const std::size_t run =
            escape ? static_cast<std::size_t>(static_cast<const std::uint8_t*>(escape) - from)
                   : most;
        if (run) std::memcpy(buffer_.data() + at, from, run);
        at += static_cast<std::ptrdiff_t>(run);
        filePosition_ += run;
        if (escape) {
            TakeEscape(at);
        } else {
            atMarker_ = filePosition_ == file_.size();
        }
    }
    if (!atMarker_) {
        dataEnd_ = at;
        refillFrom_ = buffer_.data() + kWindow - kBlockBytes;
        return;
    }
    // A reader that has overrun stays overrun: its end lies before the buffer.
    if (dataEnd_ >= 0) dataEnd_ = at;
    std::memset(buffer_.data() + at, 0, kBlockBytes);
    refillFrom_ = buffer_.data() + at;
}

// An escape is followed by a zero where it stands for itself, perhaps after more of its kind;
// anything else is a marker.
void ScanBytes::TakeEscape(std::ptrdiff_t& at) {
    std::size_t next = filePosition_ + 1;
    while (next < file_.size() && file_[next] == kEscape) ++next;
    if (next == file_.size() || file_[next] != 0) {
        atMarker_ = true;
        return;
    }
    buffer_[static_cast<std::size_t>(at++)] = kEscape;
    filePosition_ = next + 1;
}

std::size_t ScanBytes::FindEnd() {
    if (!atMarker_) filePosition_ = FindMarker(file_, filePosition_);
    return filePosition_;
}

void ScanBytes::Restart(int expected) {
    const RestartPlace place = FindRestart(file_, FindEnd(), expected);
    filePosition_ = place.at;
    atMarker_ = !place.isThere;
    dataEnd_ = place.isThere ? 0 : -1;
    Fill();
}

std::size_t FindEndOfScan(pictures::FileWindow& file, std::size_t start, std::int64_t restarts) {
    std::size_t at = start;
    for (std::int64_t i = 0; i < restarts; ++i)
        at = FindRestart(file, at, static_cast<int>(i & 7)).at;
    return FindMarker(file, at);
}

}  // namespace vistrel::jpg
