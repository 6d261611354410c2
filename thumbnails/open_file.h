// A file of which pieces are read and written at any place.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>

namespace vistrel::thumbnails {

class OpenFile {
 public:
    /// A file that is there; `path` is ANSI text. IsOpen tells whether it can be written to as
    /// well.
    static OpenFile Existing(const std::string& path) { return OpenFile(path, "r+b"); }
    /// An empty file in the place of any that is there.
    static OpenFile Empty(const std::string& path) { return OpenFile(path, "w+b"); }
    OpenFile() = default;

    bool IsOpen() const { return file_ != nullptr; }
    /// How many bytes were read: fewer than asked for where the file ends.
    std::size_t ReadAt(std::size_t place, std::span<std::uint8_t> bytes) const;
    /// False when they could not be written; some of them may be.
    bool WriteAt(std::size_t place, std::span<const std::uint8_t> bytes) const;

 private:
    struct Closing {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    OpenFile(const std::string& path, const char* mode);
    bool GoTo(std::size_t place) const;

    std::unique_ptr<std::FILE, Closing> file_;
};

}  // namespace vistrel::thumbnails
