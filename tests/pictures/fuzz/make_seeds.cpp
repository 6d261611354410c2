// Writes small sound pictures of every kind for the fuzzers to start from:
// make_seeds FOLDER makes FOLDER/bmp, gif, jpg, jpg_scaled, screen and convert.
#include <filesystem>
#include <fstream>

#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace {

using namespace vistrel::test;
using vistrel::pictures::RgbPicture;

class SeedFolder {
 public:
    explicit SeedFolder(const std::string& path) : path_(path) {}

    // The fuzzers of conversion and scaled reading take bytes of their own before the file.
    void Add(const std::string& format, int formatNumber, const Bytes& file) {
        Write(format, {}, file);
        Write("convert", {static_cast<std::uint8_t>(formatNumber)}, file);
        if (format == "bmp") Write("screen", {}, file);
        if (format == "jpg") Write("jpg_scaled", {15, 9}, file);
    }

    void AddBmp(const Bytes& file) { Add("bmp", 0, file); }
    void AddGif(const Bytes& file) { Add("gif", 1, file); }
    void AddJpg(const Bytes& file) { Add("jpg", 2, file); }

 private:
    void Write(const std::string& format, const Bytes& before, const Bytes& file) {
        std::filesystem::create_directories(path_ / format);
        std::ofstream out(path_ / format / ("made-" + std::to_string(++written_)),
                          std::ios::binary);
        for (const Bytes* part : {&before, &file}) {
            out.write(reinterpret_cast<const char*>(part->data()),
                      static_cast<std::streamsize>(part->size()));
        }
    }

    std::filesystem::path path_;
    int written_ = 0;
};

BmpFile Bitmap(int width, int height, int bits) {
    BmpFile file;
    file.width = width;
    file.height = height;
    file.bitsPerPixel = bits;
    if (bits <= 8) file.palette = MakePalette(1 << bits);
    return file;
}

void AddBitmaps(SeedFolder& seeds) {
    const int width = 11;
    const int height = 7;
    for (const int bits : {1, 2, 4, 8}) {
        const Bytes indices = MakeIndices(width, height, 1 << bits);
        BmpFile file = Bitmap(width, height, bits);
        file.pixels = PackIndices(indices, width, height, bits);
        for (const std::uint32_t headerSize : {12, 16, 40, 64, 124}) {
            file.headerSize = headerSize;
            seeds.AddBmp(file.Encode());
        }
        if (bits < 4) continue;
        file.headerSize = 40;
        file.compression = bits == 4 ? kBmpRle4 : kBmpRle8;
        file.pixels = EncodeRle(indices, width, height, bits);
        file.pixels.insert(file.pixels.begin(), {0, 2, 3, 1});  // a jump
        seeds.AddBmp(file.Encode());
    }
    // A screen whose colours move, but that it is encoded.
    BmpFile screen = Bitmap(320, 400, 8);
    screen.compression = kBmpRle8;
    Bytes rows(320 * 400);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<std::uint8_t>(i / 2560);
    screen.pixels = EncodeRle(rows, 320, 400, 8);
    Bytes moving = screen.Encode();
    moving[50] = 40;
    seeds.AddBmp(moving);
    const RgbPicture picture = MakePicture(width, height);
    BmpFile file = Bitmap(width, -height, 24);
    file.pixels = PackRgb24(picture);
    seeds.AddBmp(file.Encode());
    for (const int bits : {16, 32}) {
        file = Bitmap(width, height, bits);
        file.compression = kBmpBitFields;
        file.masks = bits == 16 ? std::vector<std::uint32_t>{0xF800, 0x7E0, 0x1F}
                                : std::vector<std::uint32_t>{0xFF0000, 0xFF00, 0xFF};
        file.pixels = PackMasked(picture, bits, file.masks);
        seeds.AddBmp(file.Encode());
    }
}

void AddGifs(SeedFolder& seeds) {
    for (const int colors : {2, 16, 256}) {
        GifFile file = MakeGif(40, 30, colors);
        seeds.AddGif(file.Encode());
        file.images[0].interlaced = true;
        file.images[0].transparent = 1;
        file.images[0].palette = MakeGifColors(colors);
        file.images[0].left = 20;
        file.images.push_back(file.images[0]);
        seeds.AddGif(file.Encode());
    }
    // Enough pixels for all 4,096 codes.
    GifFile file = MakeGif(120, 120, 256);
    file.images[0].lzw.clearWhenFull = false;
    seeds.AddGif(file.Encode());
}

void AddJpegs(SeedFolder& seeds) {
    const RgbPicture picture = MakePicture(37, 29);
    for (const J_COLOR_SPACE color : {JCS_YCbCr, JCS_GRAYSCALE, JCS_RGB, JCS_CMYK, JCS_YCCK}) {
        for (const int across : {1, 2}) {
            for (const int down : {1, 2}) {
                JpgOptions options;
                options.color = color;
                options.sampling = {{across, down}};
                seeds.AddJpg(MakeJpg(picture, options));
                options.restartMcus = 2;
                options.ownTables = true;
                seeds.AddJpg(MakeJpg(picture, options));
                options.separateScans = true;
                seeds.AddJpg(MakeJpg(picture, options));
                options.progressive = true;
                seeds.AddJpg(WithOrientation(MakeJpg(picture, options), 6, across == 1));
            }
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) return 1;
    SeedFolder seeds(arguments[1]);
    AddBitmaps(seeds);
    AddGifs(seeds);
    AddJpegs(seeds);
    return 0;
}
