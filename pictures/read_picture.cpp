// Nothing is thrown at callers: where memory runs out, a picture cannot be read.
#include "pictures/read_picture.h"

#include <new>

#include "pictures/file.h"
#include "pictures/formats.h"

namespace vistrel::pictures {

std::optional<RgbPicture> ReadPicture(const std::string& path) try {
    return ReadInPieces(path, FormatOfName(path).read);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<ScaledPicture> ReadPictureScaled(const std::string& path, int width, int height) try {
    if (!IsPlausibleSize(width, height)) return std::nullopt;
    return ReadInPieces(path, [&](const PictureFile& file) {
        return FormatOfName(path).readScaled(file, width, height);
    });
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<ScaledPicture> ReadPicturePreview(const std::string& path, int width,
                                                int height) try {
    if (!IsPlausibleSize(width, height)) return std::nullopt;
    return ReadInPieces(path, [&](const PictureFile& file) {
        const PictureFormat& format = FormatOfName(path);
        if (format.readQuickly != nullptr)
            if (auto preview = format.readQuickly(file, width, height)) return preview;
        return format.readScaled(file, width, height);
    });
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

bool IsToBeTurned(const std::string& path) try {
    const PictureFormat& format = FormatOfName(path);
    return format.isToBeTurned != nullptr && ReadInPieces(path, format.isToBeTurned);
} catch (const std::bad_alloc&) {
    return false;
}

}  // namespace vistrel::pictures
