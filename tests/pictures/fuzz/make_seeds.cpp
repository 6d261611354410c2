// Writes small sound pictures of every kind for the fuzzers to start from:
// make_seeds FOLDER makes FOLDER/bmp, gif, jpg, jpg_scaled and convert.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
// clang-format off
#include <jpeglib.h>  // needs <cstdio> before it
// clang-format on

#include "tests/pictures/bmp_file.h"
#include "tests/pictures/gif_file.h"

namespace {

using namespace vistrel::test;
using vistrel::RgbPicture;

class SeedFolder {
 public:
    explicit SeedFolder(const std::string& path) : path_(path) {}

    // The fuzzers of conversion and scaled reading take bytes of their own before the file.
    void Add(const std::string& format, int formatNumber, const Bytes& file) {
        Write(format, {}, file);
        Write("convert", {static_cast<std::uint8_t>(formatNumber)}, file);
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

struct JpegOptions {
    J_COLOR_SPACE space = JCS_YCbCr;
    int across = 1;  // sampling of the first component
    int down = 1;
    bool progressive = false;
    int restart = 0;  // interval
};

Bytes EncodeJpeg(const RgbPicture& picture, const JpegOptions& options) {
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = static_cast<JDIMENSION>(picture.width);
    jpeg.image_height = static_cast<JDIMENSION>(picture.height);
    const bool cmyk = options.space == JCS_CMYK || options.space == JCS_YCCK;
    jpeg.input_components = cmyk ? 4 : 3;
    jpeg.in_color_space = cmyk ? JCS_CMYK : JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_colorspace(&jpeg, options.space);
    jpeg.comp_info[0].h_samp_factor = options.across;
    jpeg.comp_info[0].v_samp_factor = options.down;
    jpeg.restart_interval = static_cast<unsigned>(options.restart);
    if (options.progressive) jpeg_simple_progression(&jpeg);
    jpeg_start_compress(&jpeg, TRUE);
    for (int y = 0; y < picture.height; ++y) {
        Bytes row;
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* rgb = &picture.pixels[3 * (y * picture.width + x)];
            row.insert(row.end(), rgb, rgb + 3);
            if (cmyk) row.push_back(40);
        }
        JSAMPROW rows[] = {row.data()};
        jpeg_write_scanlines(&jpeg, rows, 1);
    }
    jpeg_finish_compress(&jpeg);
    const Bytes file(memory, memory + size);
    jpeg_destroy_compress(&jpeg);
    std::free(memory);
    return file;
}

void AddJpegs(SeedFolder& seeds) {
    const RgbPicture picture = MakePicture(37, 29);
    for (const bool progressive : {false, true}) {
        for (const J_COLOR_SPACE space : {JCS_YCbCr, JCS_GRAYSCALE, JCS_RGB, JCS_CMYK, JCS_YCCK}) {
            for (const int sampling : {1, 2}) {
                seeds.AddJpg(EncodeJpeg(picture, {space, sampling, sampling, progressive, 0}));
                seeds.AddJpg(EncodeJpeg(picture, {space, sampling, 1, progressive, 2}));
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
