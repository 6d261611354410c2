// The picture formats that are read, as one table: what a name or a file stands for is asked here,
// and a format that has a row is read everywhere.
#pragma once

#include <array>
#include <span>
#include <string>

#include "pictures/picture_file.h"

namespace vistrel::pictures {

/// How the files of one format are read. Each function is empty when they cannot be: damaged beyond
/// use, or of a kind that is not known.
struct PictureFormat {
    /// The last four characters of a name, as ".BMP"; unused ones are empty.
    std::array<const char*, 2> endings;
    /// Bits per pixel as they are told to the user; 0 where the file says so itself.
    int depth;

    std::optional<RgbPicture> (*read)(const PictureFile& file);
    /// The picture scaled, with no more read of the file than that needs.
    std::optional<ScaledPicture> (*readScaled)(const PictureFile& file, int width, int height);
    /// The same for a part of the picture, which must lie within it.
    std::optional<RgbPicture> (*readPart)(const PictureFile& file, const PictureArea& area,
                                          int width, int height);
    /// The size of the picture, upright; its content is not looked at.
    std::optional<PictureSize> (*size)(const PictureFile& file);

    /// A quicker and coarser way to a small picture of some files, where there is one.
    std::optional<ScaledPicture> (*readQuickly)(const PictureFile& file, int width,
                                                int height) = nullptr;
    /// True of a picture that lies in its file on its side, upside down or mirrored, and says so;
    /// null for a format that cannot say it.
    bool (*isToBeTurned)(const PictureFile& file) = nullptr;
};

/// All of them, bitmaps first.
std::span<const PictureFormat> PictureFormats();

/// The format that the last four characters of a name stand for, in any case; a name that stands
/// for none is taken as a bitmap's.
const PictureFormat& FormatOfName(const std::string& path);

/// True for a name that ends as one of a format does.
bool IsPictureName(const std::string& name);

}  // namespace vistrel::pictures
