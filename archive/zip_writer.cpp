#include "archive/zip_writer.h"

#include <algorithm>

#include "archive/crc32.h"
#include "archive/zip_format.h"

namespace vistrel::archive {
namespace {

using pictures::FileBytes;
using pictures::PictureFile;

/// "2.0", as every unzip knows it.
constexpr std::uint32_t kNeededVersion = 20;
/// Beyond this sizes need records of the newer kind.
constexpr std::uint32_t kMostBytes = 0x7FFFFFFF;

/// A record's fields, one behind the other.
class Record {
 public:
    Record& Word(std::uint32_t value) { return Bytes(value, 2); }
    Record& DoubleWord(std::uint32_t value) { return Bytes(value, 4); }
    Record& Text(const std::string& text) {
        bytes.insert(bytes.end(), text.begin(), text.end());
        return *this;
    }

    std::vector<std::uint8_t> bytes;

 private:
    Record& Bytes(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        return *this;
    }
};

/// Calls `take` with one piece after the other until it returns false.
bool ForEachPiece(const PictureFile& file, const Sink& take) {
    std::vector<std::uint8_t> room;
    for (std::size_t at = 0; at < file.size(); at += pictures::FileWindow::kRoom)
        if (!take(file.Piece(at, std::min(file.size() - at, pictures::FileWindow::kRoom), room)))
            return false;
    return true;
}

bool IsAscii(const std::string& name) {
    return std::all_of(name.begin(), name.end(),
                       [](char letter) { return static_cast<unsigned char>(letter) < 128; });
}

}  // namespace

bool ZipWriter::Write(std::span<const std::uint8_t> bytes) {
    written_ += static_cast<std::uint32_t>(bytes.size());
    return out_(bytes);
}

bool ZipWriter::Add(const std::string& name, std::uint32_t modified, const PictureFile& content) {
    if (content.size() > kMostBytes - written_ || entries_ == 0xFFFE) return false;
    std::uint32_t sum = 0;
    ForEachPiece(content, [&](FileBytes piece) {
        sum = Crc32(sum, piece);
        return true;
    });
    const auto size = static_cast<std::uint32_t>(content.size());
    const auto nameLength = static_cast<std::uint32_t>(name.size());

    // The same fields stand in front of the content and in the directory.
    Record common;
    common.Word(kNeededVersion).Word(IsAscii(name) ? 0 : kUtf8Flag).Word(kStored);
    common.DoubleWord(modified).DoubleWord(sum).DoubleWord(size).DoubleWord(size);
    common.Word(nameLength).Word(0);  // no extra field

    Record before;
    before.DoubleWord(kLocalHeader);
    before.bytes.insert(before.bytes.end(), common.bytes.begin(), common.bytes.end());
    before.Text(name);

    Record entry;
    entry.DoubleWord(kDirectoryHeader).Word(kNeededVersion);
    entry.bytes.insert(entry.bytes.end(), common.bytes.begin(), common.bytes.end());
    // No comment, part 0, binary, no attributes.
    entry.Word(0).Word(0).Word(0).DoubleWord(0).DoubleWord(written_).Text(name);
    directory_.insert(directory_.end(), entry.bytes.begin(), entry.bytes.end());
    ++entries_;

    return Write(before.bytes) &&
           ForEachPiece(content, [&](FileBytes piece) { return Write(piece); });
}

bool ZipWriter::Finish() {
    const std::uint32_t begin = written_;
    const auto size = static_cast<std::uint32_t>(directory_.size());
    Record end;
    end.DoubleWord(kEndRecord).Word(0).Word(0).Word(entries_).Word(entries_);
    end.DoubleWord(size).DoubleWord(begin).Word(0);
    return Write(directory_) && Write(end.bytes);
}

}  // namespace vistrel::archive
