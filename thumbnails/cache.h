// The file that keeps the small pictures of screens from one run to the next.
//
// It has a header, a table with a row for each picture, and as many places for pixels, all with
// room for the largest picture: nothing in it says where something lies, so that no damage can lead
// astray. Header, rows and pixels carry check sums. What does not fit its sum is not there, and is
// made again.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "pictures/rgb_picture.h"
#include "thumbnails/open_file.h"

namespace vistrel::thumbnails {

/// The largest size in which a picture is kept, which is the largest that is shown.
inline constexpr int kKeptWidth = 128;
inline constexpr int kKeptHeight = 96;

/// Pictures that are kept at most: a file of 16 MB.
inline constexpr std::uint32_t kMostKept = 640;

/// Which screen a picture is of: the file, and how it was then.
struct Source {
    std::string path;
    std::uint64_t modified = 0;
    std::uint64_t size = 0;

    /// Stands for how the file was: another one for another time or size.
    std::uint64_t Stamp() const;
};

struct KeptPicture {
    pictures::RgbPicture picture;
    std::uint64_t stamp = 0;  ///< of the source that it was made of
};

class Cache {
 public:
    /// The file is opened, or made, when it is first needed. Where that fails nothing is kept.
    explicit Cache(std::string path, std::uint32_t most = kMostKept);

    /// The picture that was kept of just this file. Empty when there is none, or it is damaged.
    std::optional<pictures::RgbPicture> Find(const Source& source);
    /// The same of a screen by its path alone, which may be another by now: a look at the disk
    /// would take longer than this.
    std::optional<KeptPicture> FindOfPath(const std::string& path);
    /// Keeps a picture of at most kKeptWidth x kKeptHeight pixels, in the place of an older one of
    /// the same screen, or of the one that has been kept longest where there is no more room.
    void Keep(const Source& source, const pictures::RgbPicture& picture);
    /// Keeps none of a screen any more.
    void Drop(const std::string& path);

 private:
    struct Row {
        std::uint64_t key = 0;  ///< stands for the path
        std::uint64_t stamp = 0;
        std::uint32_t turn = 0;  ///< counts up with each picture; 0 in a row that is free
        std::uint32_t pixelSum = 0;
        std::uint16_t width = 0;
        std::uint16_t height = 0;

        std::size_t PixelBytes() const { return std::size_t{width} * height * 2; }
    };

    static std::vector<std::uint8_t> BytesOf(const Row& row);
    static Row RowFrom(std::span<const std::uint8_t> bytes);
    std::vector<std::uint8_t> Header() const;
    bool Open();
    void ReadRows();
    /// The row of a path; rows_.end() for none.
    std::vector<Row>::iterator RowOfPath(const std::string& path);
    std::optional<pictures::RgbPicture> PictureOf(std::vector<Row>::iterator row);
    std::vector<Row>::iterator PlaceFor(const std::string& path);
    std::size_t PlaceOfRow(std::size_t number) const;
    std::size_t PlaceOfPixels(std::size_t number) const;

    std::string path_;
    std::uint32_t most_;
    bool tried_ = false;  ///< to open the file
    OpenFile file_;
    std::vector<Row> rows_;
};

}  // namespace vistrel::thumbnails
