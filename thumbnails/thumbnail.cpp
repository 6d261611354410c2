#include "thumbnails/thumbnail.h"

#include <utility>

#include "pictures/read_picture.h"
#include "pictures/scale/resize.h"

namespace vistrel::thumbnails {
namespace {

// In the size that is shown: so it is shown next time as it is kept.
std::optional<pictures::RgbPicture> Made(const Source& source, int width, int height) {
    auto made = pictures::ReadPicturePreview(source.path, width, height);
    if (!made) return std::nullopt;
    return std::move(made->picture);
}

}  // namespace

std::optional<pictures::RgbPicture> ThumbnailOf(const Source& source, Cache& cache, int width,
                                                int height) {
    auto picture = cache.Find(source);
    if (picture && picture->width == width && picture->height == height) return picture;
    const bool isLarger = picture && picture->width >= width && picture->height >= height;
    picture = isLarger ? scale::Resize(*picture, width, height) : Made(source, width, height);
    if (picture) cache.Keep(source, *picture);
    return picture;
}

}  // namespace vistrel::thumbnails
