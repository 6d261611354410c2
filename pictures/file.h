// Files: read whole or in pieces, and written so that a target is never left half written.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "pictures/picture_file.h"

namespace vistrel::pictures {

/// The largest file that is read: the largest picture (kMostPixels) at 4 bytes per pixel and some
/// headers. No honest picture file is larger, and nothing larger should be asked of the memory.
inline constexpr long kLargestFile = 264L * 1024 * 1024;

/// All bytes of the file at `path` (ANSI text). Empty when it cannot be opened or read to its end,
/// or is larger than kLargestFile.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path);

/// A file that is open to be read in pieces.
class FileOnDisk : public ByteSource {
 public:
    /// Null when the file cannot be opened or is larger than kLargestFile.
    static std::unique_ptr<FileOnDisk> Open(const std::string& path);

    /// True when a piece could not be read: what came in its place is zeros.
    virtual bool HasFailed() const = 0;
};

/// What `read` makes of the file at `path`, of which no more is in memory at a time than `read`
/// keeps; its "empty" when the file cannot be opened or a piece of it cannot be read.
template <class Read>
auto ReadInPieces(const std::string& path, Read read) {
    using Result = decltype(read(std::declval<PictureFile>()));
    const std::unique_ptr<FileOnDisk> file = FileOnDisk::Open(path);
    if (!file) return Result{};
    Result result = read(PictureFile(*file));
    if (file->HasFailed()) return Result{};
    return result;
}

/// The first `count` bytes of a file. Empty when it cannot be opened or has fewer.
std::optional<std::vector<std::uint8_t>> ReadStartOfFile(const std::string& path,
                                                         std::size_t count);

/// A file that is written in pieces, replacing one of that name when it is finished. The bytes go
/// to a temporary name in the same folder first, so a full disk never leaves half a file under the
/// target's name.
class FileWriter {
 public:
    explicit FileWriter(std::string path);
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    /// What is not finished is removed.
    ~FileWriter();

    /// False when the piece could not be written, or no file could be made to write it into.
    bool Write(FileBytes bytes);
    /// False when the file could not take the target's place, which is then as it was.
    bool Finish();

 private:
    std::string path_;
    std::string temporary_;
    std::FILE* file_ = nullptr;
};

/// Writes `bytes` to `path` by a FileWriter. False when the file could not be written; `path` is
/// then as it was.
bool WriteWholeFile(const std::string& path, const std::vector<std::uint8_t>& bytes);

/// Where a program was ended while a file took the place of the one at `path`, the former one has
/// stepped aside: it comes back. Elsewhere nothing happens.
void EndInterruptedWriting(const std::string& path);

/// What the names of files look like that are being written.
inline constexpr const char* kFilesBeingWritten = "~vs?????.tmp";

}  // namespace vistrel::pictures
