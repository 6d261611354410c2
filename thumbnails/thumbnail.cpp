#include "thumbnails/thumbnail.h"

#include <utility>

#include "pictures/read_picture.h"
#include "pictures/scale/resize.h"

namespace vistrel::thumbnails {
namespace {

std::optional<pictures::RgbPicture> KeptOrMade(const Source& source, Cache& cache) {
    auto kept = cache.Find(source);
    if (kept) return kept;
    auto made = pictures::ReadPicturePreview(source.path, kKeptWidth, kKeptHeight);
    if (!made) return std::nullopt;
    cache.Keep(source, made->picture);
    return std::move(made->picture);
}

}  // namespace

std::optional<pictures::RgbPicture> ThumbnailOf(const Source& source, Cache& cache, int width,
                                                int height) {
    auto picture = KeptOrMade(source, cache);
    if (!picture || (width == picture->width && height == picture->height)) return picture;
    return scale::Resize(*picture, width, height);
}

}  // namespace vistrel::thumbnails
