// A picture file as its readers see it: bytes in memory, or read in pieces from where they lie, so
// that it never is in memory as a whole.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

/// Where the pieces come from.
class ByteSource {
 public:
    virtual ~ByteSource() = default;

    virtual std::size_t size() const = 0;

    /// Reads the bytes from `at` on. All of them must lie before the end.
    virtual void Read(std::size_t at, std::span<std::uint8_t> to) = 0;
};

/// The whole content of a picture file. A copy is of the same file; what it comes from must outlive
/// all of them.
class PictureFile {
 public:
    PictureFile(FileBytes bytes) : memory_(bytes), size_(bytes.size()) {}
    PictureFile(const std::vector<std::uint8_t>& bytes) : PictureFile(FileBytes(bytes)) {}
    explicit PictureFile(ByteSource& source) : source_(&source), size_(source.size()) {}

    std::size_t size() const { return size_; }

    /// All bytes at once, if they are in memory; else none.
    FileBytes memory() const { return memory_; }

    /// Copies the bytes from `at` on. Behind the end stand zeros.
    void Copy(std::size_t at, std::span<std::uint8_t> to) const;

    /// `count` bytes from `at` on, which must lie before the end: those in memory, or a copy that
    /// is put into `room`.
    FileBytes Piece(std::size_t at, std::size_t count, std::vector<std::uint8_t>& room) const;

 private:
    ByteSource* source_ = nullptr;
    FileBytes memory_;
    std::size_t size_;
};

/// A look at some thousand bytes of a file, which moves along with what is read.
class FileWindow {
 public:
    /// Bytes that can be seen at once, at least.
    static constexpr std::size_t kRoom = 8192;

    explicit FileWindow(const PictureFile& file) : file_(file) {}
    FileWindow(const FileWindow& other) : FileWindow(other.file_) {}
    FileWindow& operator=(const FileWindow&) = delete;

    std::size_t size() const { return file_.size(); }

    /// The byte at `at`, which must lie before the end.
    std::uint8_t operator[](std::size_t at) {
        if (at - begin_ >= seen_.size()) MoveTo(at);
        return seen_[at - begin_];
    }

    /// The bytes from `at` on that can be seen: `least` of them (1 to kRoom) or more, unless the
    /// file ends before. They stay until the next call.
    FileBytes From(std::size_t at, std::size_t least = 1);

 private:
    void MoveTo(std::size_t at);

    PictureFile file_;
    std::size_t begin_ = 0;  ///< where in the file seen_ begins
    FileBytes seen_;
    std::vector<std::uint8_t> room_;
};

}  // namespace vistrel::pictures
