#include "archive/zip_reader.h"

#include <algorithm>
#include <optional>

#include "archive/crc32.h"
#include "archive/zip_format.h"
#include "pictures/little_endian.h"

namespace vistrel::archive {
namespace {

using pictures::DoubleWord;
using pictures::FileBytes;
using pictures::FileWindow;
using pictures::PictureFile;
using pictures::Word;

constexpr std::size_t kLongestComment = 65535;
/// What a field holds whose value stands in a record of the newer kind.
constexpr std::uint32_t kElsewhere16 = 0xFFFF;
constexpr std::uint32_t kElsewhere32 = 0xFFFFFFFF;

std::string TextAt(FileWindow& file, std::size_t at, std::size_t length) {
    std::string text;
    for (std::size_t i = 0; i < length; ++i) text += static_cast<char>(file[at + i]);
    return text;
}

/// The last record of the file, behind which a comment may stand.
std::optional<std::size_t> FindEnd(const PictureFile& file) {
    if (file.size() < kEndRecordSize) return std::nullopt;
    // A bounded part of the file, which is looked at from its end.
    const std::size_t last = file.size() - kEndRecordSize;
    const std::size_t first = last - std::min(last, kLongestComment);
    std::vector<std::uint8_t> room;
    const FileBytes tail = file.Piece(first, file.size() - first, room);
    for (std::size_t at = last - first + 1; at-- > 0;) {
        if (DoubleWord(tail, at) != kEndRecord) continue;
        if (at + kEndRecordSize + Word(tail, at + 20) <= tail.size()) return first + at;
    }
    return std::nullopt;
}

ArchiveFault FaultWithoutEnd(FileWindow& file) {
    const std::uint32_t mark = DoubleWord(file, 0);
    if (mark == kSpanMark) return ArchiveFault::Parts;
    return mark == kLocalHeader ? ArchiveFault::CutShort : ArchiveFault::NotAnArchive;
}

/// Where the headers of the entries stand.
struct Headers {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t count = 0;
    std::size_t before = 0;  ///< bytes in front of the archive, such as a program that unpacks it
};

ArchiveFault ReadEnd(FileWindow& file, std::size_t at, Headers& headers) {
    const std::uint32_t count = Word(file, at + 10);
    const std::uint32_t size = DoubleWord(file, at + 12);
    const std::uint32_t begin = DoubleWord(file, at + 16);
    const bool hasLocator =
        at >= kZip64LocatorSize && DoubleWord(file, at - kZip64LocatorSize) == kZip64Locator;
    if (hasLocator || count == kElsewhere16 || size == kElsewhere32 || begin == kElsewhere32)
        return ArchiveFault::Zip64;
    if (Word(file, at + 4) != 0 || Word(file, at + 6) != 0 || Word(file, at + 8) != count)
        return ArchiveFault::Parts;
    if (count > kMostEntries) return ArchiveFault::TooMuch;
    if (size > at || begin > at - size) return ArchiveFault::Damaged;
    headers = {at - size, at, count, at - size - begin};
    return ArchiveFault::None;
}

class DirectoryReader {
 public:
    DirectoryReader(const PictureFile& file, const Headers& headers, const DosToUtf8& toUtf8)
        : file_(file), headers_(headers), toUtf8_(toUtf8), at_(headers.begin) {}

    Directory Read() {
        Directory all;
        while (all.fault == ArchiveFault::None && all.entries.size() < headers_.count)
            all.fault = ReadNext(all.entries.emplace_back());
        if (all.fault != ArchiveFault::None) all.entries.clear();
        return all;
    }

 private:
    ArchiveFault ReadNext(Entry& entry) {
        if (at_ + kDirectoryHeaderSize > headers_.end || DoubleWord(file_, at_) != kDirectoryHeader)
            return ArchiveFault::Damaged;
        entry.flags = Field(8);
        entry.method = Field(10);
        entry.modified = DoubleWord(file_, at_ + 12);
        entry.sum = DoubleWord(file_, at_ + 16);
        entry.packedSize = DoubleWord(file_, at_ + 20);
        entry.size = DoubleWord(file_, at_ + 24);
        const std::uint32_t header = DoubleWord(file_, at_ + 42);
        if (entry.packedSize == kElsewhere32 || entry.size == kElsewhere32 ||
            header == kElsewhere32)
            return ArchiveFault::Zip64;
        if (Field(34) != 0) return ArchiveFault::Parts;

        const std::size_t nameLength = Field(28);
        const std::size_t length = kDirectoryHeaderSize + nameLength + Field(30) + Field(32);
        if (length > headers_.end - at_) return ArchiveFault::Damaged;
        entry.headerAt = headers_.before + header;
        // What entries are packed into cannot be more than the file, unless several share it.
        packed_ += entry.packedSize;
        if (packed_ > file_.size() || entry.headerAt + kLocalHeaderSize > headers_.begin)
            return ArchiveFault::Damaged;

        entry.name = TextAt(file_, at_ + kDirectoryHeaderSize, nameLength);
        if ((entry.flags & kUtf8Flag) == 0) entry.name = toUtf8_(entry.name);
        at_ += length;
        return IsSafeName(entry.name) ? ArchiveFault::None : ArchiveFault::UnsafeName;
    }

    std::uint16_t Field(std::size_t offset) {
        return static_cast<std::uint16_t>(Word(file_, at_ + offset));
    }

    FileWindow file_;
    const Headers headers_;
    const DosToUtf8& toUtf8_;
    std::size_t at_;
    std::uint64_t packed_ = 0;
};

ArchiveFault CopyStored(const PictureFile& file, std::size_t begin, std::size_t end,
                        const Sink& sink) {
    std::vector<std::uint8_t> room;
    while (begin < end) {
        const FileBytes piece = file.Piece(begin, std::min(end - begin, FileWindow::kRoom), room);
        if (!sink(piece)) return ArchiveFault::Stopped;
        begin += piece.size();
    }
    return ArchiveFault::None;
}

/// Dots lead upwards: "..", and on Windows 95 "..." further yet.
bool IsDotsAndBlanks(const std::string& part) {
    return part.find_first_not_of(". ") == std::string::npos;
}

}  // namespace

bool IsSafeName(const std::string& name) {
    for (const char letter : name)
        if (static_cast<unsigned char>(letter) < ' ' || letter == '\\' || letter == ':')
            return false;
    std::size_t begin = 0;
    do {
        const std::size_t end = std::min(name.find('/', begin), name.size());
        if (IsDotsAndBlanks(name.substr(begin, end - begin))) return false;
        begin = end + 1;
    } while (begin < name.size());
    return true;
}

Directory ReadDirectory(const PictureFile& file, const DosToUtf8& toUtf8) {
    FileWindow window(file);
    const auto end = FindEnd(file);
    if (!end) return {FaultWithoutEnd(window), {}};
    Headers headers;
    const ArchiveFault fault = ReadEnd(window, *end, headers);
    if (fault != ArchiveFault::None) return {fault, {}};
    return DirectoryReader(file, headers, toUtf8).Read();
}

ArchiveFault Unpack(const PictureFile& file, const Entry& entry, const Sink& sink) {
    if (entry.flags & kEncryptedFlag) return ArchiveFault::Encrypted;
    if (entry.method != kStored && entry.method != kDeflated) return ArchiveFault::UnknownMethod;
    FileWindow window(file);
    const std::size_t header = entry.headerAt;
    if (DoubleWord(window, header) != kLocalHeader) return ArchiveFault::Damaged;
    const std::size_t begin =
        header + kLocalHeaderSize + Word(window, header + 26) + Word(window, header + 28);
    if (begin > file.size() || entry.packedSize > file.size() - begin) return ArchiveFault::Damaged;

    std::uint32_t sum = 0;
    std::uint32_t size = 0;
    bool tooMuch = false;
    const Sink counting = [&](FileBytes bytes) {
        tooMuch = bytes.size() > entry.size - size;
        if (tooMuch) return false;
        sum = Crc32(sum, bytes);
        size += static_cast<std::uint32_t>(bytes.size());
        return sink(bytes);
    };
    const auto unpack = entry.method == kStored ? CopyStored : Inflate;
    const ArchiveFault fault = unpack(file, begin, begin + entry.packedSize, counting);
    if (tooMuch) return ArchiveFault::Damaged;
    if (fault != ArchiveFault::None) return fault;
    return size == entry.size && sum == entry.sum ? ArchiveFault::None : ArchiveFault::Damaged;
}

}  // namespace vistrel::archive
