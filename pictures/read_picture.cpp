// Nothing is thrown at callers: where memory runs out, a picture cannot be read.
#include "pictures/read_picture.h"

#include <new>

#include "pictures/file.h"
#include "pictures/formats.h"

namespace vistrel::pictures {

std::optional<RgbPicture> ReadPicture(const std::string& path) try {
    const auto file = ReadWholeFile(path);
    return file ? FormatOfName(path).read(*file) : std::nullopt;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<ScaledPicture> ReadPictureScaled(const std::string& path, int width, int height) try {
    if (!IsPlausibleSize(width, height)) return std::nullopt;
    const auto file = ReadWholeFile(path);
    return file ? FormatOfName(path).readScaled(*file, width, height) : std::nullopt;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<ScaledPicture> ReadPicturePreview(const std::string& path, int width,
                                                int height) try {
    if (!IsPlausibleSize(width, height)) return std::nullopt;
    const auto file = ReadWholeFile(path);
    if (!file) return std::nullopt;
    const PictureFormat& format = FormatOfName(path);
    if (format.readQuickly != nullptr)
        if (auto preview = format.readQuickly(*file, width, height)) return preview;
    return format.readScaled(*file, width, height);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

bool IsToBeTurned(const std::string& path) try {
    const PictureFormat& format = FormatOfName(path);
    if (format.isToBeTurned == nullptr) return false;
    const auto file = ReadWholeFile(path);
    return file && format.isToBeTurned(*file);
} catch (const std::bad_alloc&) {
    return false;
}

}  // namespace vistrel::pictures
