// The image library's boundary: pictures cross it as memory blocks, so nothing on the other side
// depends on how they are read, scaled and reduced.
#include "pictures/imgdll.h"

#include <algorithm>
#include <new>

#include "pictures/bmp/reader.h"
#include "pictures/bmp/writer.h"
#include "pictures/file.h"
#include "pictures/formats.h"
#include "pictures/gif/reader.h"
#include "pictures/jpg/reader.h"
#include "pictures/read_picture.h"
#include "pictures/reduce/quantize.h"
#include "pictures/scale/resize.h"

namespace vistrel::pictures {

namespace {

/// The pixels in a new memory block; 0 when there is no memory.
platform::GlobalHandle BlockOf(const RgbPicture& picture) {
    const platform::GlobalHandle block = platform::AllocateGlobal(picture.pixels.size());
    void* const memory = platform::LockGlobal(block);
    if (memory == nullptr) {
        platform::FreeGlobal(block);
        return nullptr;
    }
    std::copy(picture.pixels.begin(), picture.pixels.end(), static_cast<std::uint8_t*>(memory));
    platform::UnlockGlobal(block);
    return block;
}

/// The same, with the size that the picture has in its file.
platform::GlobalHandle BlockOf(const RgbPicture& picture, int fileWidth, int fileHeight,
                               std::int16_t* width, std::int16_t* height) {
    const platform::GlobalHandle block = BlockOf(picture);
    if (block == nullptr) return nullptr;
    *width = static_cast<std::int16_t>(fileWidth);  // readers give no larger ones
    *height = static_cast<std::int16_t>(fileHeight);
    return block;
}

using Reader = std::optional<RgbPicture> (*)(const PictureFile& file);

// No exception crosses the boundary: where memory runs out, the operation fails.
platform::GlobalHandle ReadIntoBlock(const char* path, Reader read, std::int16_t* width,
                                     std::int16_t* height) try {
    const std::optional<RgbPicture> picture = ReadInPieces(path, read);
    return picture ? BlockOf(*picture, picture->width, picture->height, width, height) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

}  // namespace

// Everything the library needs is made where it is used: there is nothing to unlock or to prepare.
void ImgDLLStringInitDLL(const char*) {}

platform::GlobalHandle ImgDLLReadRGBFromBMP(const char* path, std::int16_t* width,
                                            std::int16_t* height) {
    return ReadIntoBlock(path, bmp::ReadBmp, width, height);
}

platform::GlobalHandle ImgDLLReadRGBFromGIF(const char* path, std::int16_t* width,
                                            std::int16_t* height) {
    return ReadIntoBlock(path, gif::ReadGif, width, height);
}

platform::GlobalHandle ImgDLLReadRGBFromJPG(const char* path, std::int16_t* width,
                                            std::int16_t* height) {
    return ReadIntoBlock(path, jpg::ReadJpg, width, height);
}

platform::GlobalHandle ImgDLLReadRGBAtSize(const char* path, int wantedWidth, int wantedHeight,
                                           ReadingFor purpose, std::int16_t* width,
                                           std::int16_t* height) try {
    if (wantedWidth == kOwnSize && wantedHeight == kOwnSize)
        return ReadIntoBlock(path, FormatOfName(path).read, width, height);
    const std::optional<ScaledPicture> scaled =
        purpose == ReadingFor::Looking ? ReadPicturePreview(path, wantedWidth, wantedHeight)
                                       : ReadPictureScaled(path, wantedWidth, wantedHeight);
    if (!scaled) return nullptr;
    return BlockOf(scaled->picture, scaled->fileWidth, scaled->fileHeight, width, height);
} catch (const std::bad_alloc&) {
    return nullptr;
}

platform::GlobalHandle ImgDLLResizeRGB(const std::uint8_t* rgb, int width, int height, int newWidth,
                                       int newHeight) try {
    if (rgb == nullptr || !IsPlausibleSize(width, height) ||
        !IsPlausibleSize(newWidth, newHeight)) {
        return nullptr;
    }
    return BlockOf(scale::Resize(rgb, width, height, newWidth, newHeight));
} catch (const std::bad_alloc&) {
    return nullptr;
}

int ImgDLLQuantizeRGBTo8Bit(const std::uint8_t* rgb, std::uint8_t* indices, int width, int height,
                            int colors, std::uint8_t* palette) try {
    if (rgb == nullptr || indices == nullptr || palette == nullptr) return 0;
    return reduce::QuantizeRgb(rgb, width, height, colors, indices, palette) ? 1 : 0;
} catch (const std::bad_alloc&) {
    return 0;
}

int ImgDLLSaveColormappedToBMP(const char* path, const std::uint8_t* indices, int width, int height,
                               int bitsPerPixel, int colors, const std::uint8_t* palette) try {
    if (indices == nullptr || palette == nullptr || bitsPerPixel != 8 ||
        !IsPlausibleSize(width, height) || colors < 2 || colors > 256) {
        return 0;
    }
    return WriteWholeFile(path, bmp::ColormappedBmp(indices, width, height, colors, palette)) ? 1
                                                                                              : 0;
} catch (const std::bad_alloc&) {
    return 0;
}

}  // namespace vistrel::pictures
