// The file that keeps the small pictures of screens from one run to the next.
//
// It has a header, a table with a row for each picture, and as many places for pixels, all of one
// size: nothing in it says where something lies, so that no damage can lead astray. Header, rows
// and pixels carry check sums. What does not fit its sum is not there, and is made again.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "pictures/rgb_picture.h"
#include "thumbnails/open_file.h"

namespace vistrel::thumbnails {

/// The size in which pictures are kept, which is the largest that is shown.
inline constexpr int kKeptWidth = 128;
inline constexpr int kKeptHeight = 96;

/// Pictures that are kept at most: a file of 16 MB.
inline constexpr std::uint32_t kMostKept = 640;

/// Which screen a picture is of: the file, and how it was then.
struct Source {
    std::string path;
    std::uint64_t modified = 0;
    std::uint64_t size = 0;
};

class Cache {
 public:
    /// The file is opened, or made, when it is first needed. Where that fails nothing is kept.
    explicit Cache(std::string path, std::uint32_t most = kMostKept);

    /// The picture that was kept of just this file. Empty when there is none, or it is damaged.
    std::optional<pictures::RgbPicture> Find(const Source& source);
    /// Keeps a picture of kKeptWidth x kKeptHeight pixels, in the place of an older one of the same
    /// screen, or of the one that has been kept longest where there is no more room.
    void Keep(const Source& source, const pictures::RgbPicture& picture);

 private:
    struct Row {
        std::uint64_t key = 0;  ///< stands for the path
        std::uint64_t modified = 0;
        std::uint32_t size = 0;
        std::uint32_t turn = 0;  ///< counts up with each picture; 0 in a row that is free
        std::uint32_t pixelSum = 0;
    };

    static Row RowOf(const Source& source);
    static std::vector<std::uint8_t> BytesOf(const Row& row);
    static Row RowFrom(std::span<const std::uint8_t> bytes);
    std::vector<std::uint8_t> Header() const;
    bool Open();
    void ReadRows();
    std::size_t PlaceFor(const Row& row) const;
    std::size_t PlaceOfRow(std::size_t number) const;
    std::size_t PlaceOfPixels(std::size_t number) const;

    std::string path_;
    std::uint32_t most_;
    bool tried_ = false;  ///< to open the file
    OpenFile file_;
    std::vector<Row> rows_;
};

}  // namespace vistrel::thumbnails
