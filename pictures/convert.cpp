// The way of a picture from its file to a screen file.
#include "pictures/convert.h"

#include <new>

#include "pictures/bmp/reader.h"
#include "pictures/bmp/writer.h"
#include "pictures/gif/reader.h"
#include "pictures/jpg/reader.h"
#include "pictures/reduce/quantize.h"
#include "pictures/screen/screen_preview.h"
#include "pictures/whole_file.h"

namespace vistrel::pictures {
namespace {

char Upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::unique_ptr<PictureRows> OpenRows(PictureFormat format, FileBytes file) {
    return format == PictureFormat::Gif ? gif::OpenGif(file) : bmp::OpenBmp(file);
}

std::optional<RgbPicture> Decode(PictureFormat format, FileBytes file) {
    if (format == PictureFormat::Jpg) return jpg::ReadJpg(file);
    const std::unique_ptr<PictureRows> rows = OpenRows(format, file);
    if (!rows) return std::nullopt;
    return ReadAll(*rows);
}

std::optional<ScaledPicture> DecodeScaled(PictureFormat format, FileBytes file, int width,
                                          int height) {
    if (format == PictureFormat::Jpg) return jpg::ReadJpgScaled(file, width, height);
    const std::unique_ptr<PictureRows> rows = OpenRows(format, file);
    if (!rows) return std::nullopt;
    return ReadScaled(*rows, width, height);
}

}  // namespace

PictureFormat FormatOfName(const std::string& path) {
    std::string ending = path.size() < 4 ? "" : path.substr(path.size() - 4);
    for (char& letter : ending) letter = Upper(letter);
    if (ending == ".GIF") return PictureFormat::Gif;
    if (ending == ".JPG") return PictureFormat::Jpg;
    return PictureFormat::Bmp;
}

std::optional<PictureSize> SizeOfPicture(PictureFormat format, FileBytes file) {
    if (format == PictureFormat::Jpg) return jpg::SizeOfJpg(file);
    if (format == PictureFormat::Bmp) return bmp::SizeOfBmp(file);
    const std::unique_ptr<PictureRows> rows = OpenRows(format, file);
    if (!rows) return std::nullopt;
    return PictureSize{rows->width(), rows->height()};
}

std::optional<RgbPicture> ReadPartScaled(PictureFormat format, FileBytes file,
                                         const PictureArea& area, int width, int height) {
    if (format == PictureFormat::Jpg) return jpg::ReadJpgScaled(file, area, width, height);
    const std::unique_ptr<PictureRows> rows = OpenRows(format, file);
    if (!rows) return std::nullopt;
    return ReadScaled(*rows, area, width, height);
}

// Nothing is thrown at callers: where memory runs out, a picture cannot be read.
std::optional<RgbPicture> ReadPicture(const std::string& path) try {
    const std::optional<std::vector<std::uint8_t>> file = ReadWholeFile(path);
    return file ? Decode(FormatOfName(path), *file) : std::nullopt;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

bool IsToBeTurned(const std::string& path) try {
    if (FormatOfName(path) != PictureFormat::Jpg) return false;
    const std::optional<std::vector<std::uint8_t>> file = ReadWholeFile(path);
    return file && jpg::IsJpgToBeTurned(*file);
} catch (const std::bad_alloc&) {
    return false;
}

std::optional<ScaledPicture> ReadPictureScaled(const std::string& path, int width, int height) try {
    if (!IsPlausibleSize(width, height)) return std::nullopt;
    const std::optional<std::vector<std::uint8_t>> file = ReadWholeFile(path);
    return file ? DecodeScaled(FormatOfName(path), *file, width, height) : std::nullopt;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

std::optional<ScaledPicture> ReadPicturePreview(const std::string& path, int width,
                                                int height) try {
    if (!IsPlausibleSize(width, height)) return std::nullopt;
    const std::optional<std::vector<std::uint8_t>> file = ReadWholeFile(path);
    if (!file) return std::nullopt;
    const PictureFormat format = FormatOfName(path);
    if (format == PictureFormat::Bmp)
        if (auto preview = screen::PreviewOfScreen(*file, width, height)) return preview;
    return DecodeScaled(format, *file, width, height);
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

ConversionResult TryConvertToLogo(const std::string& sourcePath,
                                  const std::string& targetPath) try {
    constexpr int kColors = 256;
    const std::optional<ScaledPicture> scaled =
        ReadPictureScaled(sourcePath, kLogoWidth, kLogoHeight);
    if (!scaled) return ConversionResult::NotRead;
    std::vector<std::uint8_t> indices(std::size_t{kLogoWidth} * kLogoHeight);
    std::vector<std::uint8_t> palette(kColors * 4);
    if (!reduce::QuantizeRgb(scaled->picture.pixels.data(), kLogoWidth, kLogoHeight, kColors,
                             indices.data(), palette.data())) {
        return ConversionResult::NotReduced;
    }
    const std::vector<std::uint8_t> file =
        bmp::ColormappedBmp(indices.data(), kLogoWidth, kLogoHeight, kColors, palette.data());
    return bmp::WriteWholeFile(targetPath, file) ? ConversionResult::Written
                                                 : ConversionResult::NotWritten;
} catch (const std::bad_alloc&) {
    return ConversionResult::NotReduced;
}

void ConvertToLogo(const std::string& sourcePath, const std::string& targetPath) {
    TryConvertToLogo(sourcePath, targetPath);
}

}  // namespace vistrel::pictures
