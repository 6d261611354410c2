// The file formats of the resource pictures: plain uncompressed bitmaps, alone or in icon files.
#include "art/files/icon_writer.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace vistrel::art {
namespace {

using Bytes = std::vector<std::uint8_t>;

[[noreturn]] void Fail(const std::string& what) {
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

void Put16(Bytes& out, unsigned value) {
    out.push_back(value & 255);
    out.push_back(value >> 8 & 255);
}

void Put32(Bytes& out, unsigned value) {
    Put16(out, value & 65535);
    Put16(out, value >> 16);
}

// The standard VGA palette in its usual order, so that 16-colour displays take it unchanged.
const char kVgaOrder[] = "krgybmcsdRGYBMCw";

std::vector<Color> PaletteFor(const Pixels& pixels, Depth depth) {
    std::vector<Color> palette;
    if (depth == Depth::Mono) return {0x000000, 0xFFFFFF};
    if (depth == Depth::Vga) {
        for (int i = 0; i < 16; ++i) palette.push_back(VgaColor(kVgaOrder[i]));
        return palette;
    }
    for (Color color : pixels.colors) palette.push_back(color == kClear ? 0 : color);
    std::sort(palette.begin(), palette.end());
    palette.erase(std::unique(palette.begin(), palette.end()), palette.end());
    if (palette.size() > 256) Fail("more than 256 colours in one picture");
    return palette;
}

unsigned IndexOf(Color color, const std::vector<Color>& palette) {
    const auto found = std::find(palette.begin(), palette.end(), color);
    if (found == palette.end()) Fail("a colour that the palette lacks");
    return static_cast<unsigned>(found - palette.begin());
}

// Rows from the bottom, `bits` a pixel, each row filled up to a multiple of four bytes.
template <typename Value>
void PutRows(Bytes& out, int width, int height, int bits, Value valueAt) {
    for (int y = height - 1; y >= 0; --y) {
        Bytes row((width * bits + 31) / 32 * 4);
        for (int x = 0; x < width; ++x) {
            row[x * bits / 8] |= valueAt(x, y) << (8 - bits - x * bits % 8);
        }
        out.insert(out.end(), row.begin(), row.end());
    }
}

// BITMAPINFOHEADER and palette; `height` is twice the picture's where a mask follows.
void PutHeader(Bytes& out, const Pixels& pixels, int height, Depth depth,
               const std::vector<Color>& palette) {
    const int bits = static_cast<int>(depth);
    Put32(out, 40);
    Put32(out, pixels.width);
    Put32(out, height);
    Put16(out, 1);
    Put16(out, bits);
    Put32(out, 0);
    Put32(out, (pixels.width * bits + 31) / 32 * 4 * pixels.height);
    Put32(out, 0);
    Put32(out, 0);
    Put32(out, 0);
    Put32(out, 0);
    for (unsigned i = 0; i < 1u << bits; ++i) Put32(out, i < palette.size() ? palette[i] : 0);
}

void PutPixels(Bytes& out, const Pixels& pixels, Depth depth, const std::vector<Color>& palette,
               Color clear) {
    PutRows(out, pixels.width, pixels.height, static_cast<int>(depth), [&](int x, int y) {
        const Color color = pixels.colors[y * pixels.width + x];
        return IndexOf(color == kClear ? clear : color, palette);
    });
}

// One picture of an icon: the colours, black where nothing is drawn, then the mask.
Bytes IconPart(const IconImage& image) {
    const Pixels& pixels = image.pixels;
    const std::vector<Color> palette = PaletteFor(pixels, image.depth);
    Bytes out;
    PutHeader(out, pixels, pixels.height * 2, image.depth, palette);
    PutPixels(out, pixels, image.depth, palette, 0);
    PutRows(out, pixels.width, pixels.height, 1,
            [&](int x, int y) { return pixels.colors[y * pixels.width + x] == kClear ? 1u : 0u; });
    return out;
}

enum class Kind { Icon = 1, Cursor = 2 };

void WriteBytes(const std::string& path, const Bytes& bytes) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) Fail("cannot write " + path);
    const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !whole) Fail("cannot write " + path);
}

// The two numbers that tell colour planes and depth in an icon are the hot spot in a cursor.
void WriteIconFile(const std::string& path, Kind kind, const std::vector<IconImage>& images,
                   int hotX, int hotY) {
    Bytes directory;
    Bytes parts;
    Put16(directory, 0);
    Put16(directory, static_cast<unsigned>(kind));
    Put16(directory, static_cast<unsigned>(images.size()));
    const unsigned start = 6 + 16 * static_cast<unsigned>(images.size());
    for (const IconImage& image : images) {
        const Bytes part = IconPart(image);
        const int bits = static_cast<int>(image.depth);
        directory.push_back(image.pixels.width & 255);
        directory.push_back(image.pixels.height & 255);
        directory.push_back(bits < 8 ? 1 << bits : 0);
        directory.push_back(0);
        Put16(directory, kind == Kind::Cursor ? hotX : 1);
        Put16(directory, kind == Kind::Cursor ? hotY : bits);
        Put32(directory, static_cast<unsigned>(part.size()));
        Put32(directory, start + static_cast<unsigned>(parts.size()));
        parts.insert(parts.end(), part.begin(), part.end());
    }
    directory.insert(directory.end(), parts.begin(), parts.end());
    WriteBytes(path, directory);
}

}  // namespace

void WriteBitmap(const std::string& path, const Pixels& pixels, Depth depth) {
    Pixels opaque = pixels;
    std::replace(opaque.colors.begin(), opaque.colors.end(), kClear, kMaskColor);
    const std::vector<Color> palette = PaletteFor(opaque, depth);
    Bytes body;
    PutHeader(body, opaque, opaque.height, depth, palette);
    const unsigned start = 14 + static_cast<unsigned>(body.size());
    PutPixels(body, opaque, depth, palette, kMaskColor);
    Bytes out = {'B', 'M'};
    Put32(out, 14 + static_cast<unsigned>(body.size()));
    Put32(out, 0);
    Put32(out, start);
    out.insert(out.end(), body.begin(), body.end());
    WriteBytes(path, out);
}

void WriteIcon(const std::string& path, const std::vector<IconImage>& images) {
    WriteIconFile(path, Kind::Icon, images, 0, 0);
}

void WriteCursor(const std::string& path, const IconImage& image, int hotX, int hotY) {
    WriteIconFile(path, Kind::Cursor, {image}, hotX, hotY);
}

}  // namespace vistrel::art
