// Each step of the other way is the quickest there is at its quality.
#include "bench/pictures/whole_way.h"

#include <cstdio>
// Needs FILE from <cstdio>.
#include <jpeglib.h>

#include <algorithm>
#include <cstdlib>

#include "bench/pictures/imagequant.h"
#include "bench/pictures/processor_time.h"
#include "pictures/bmp/writer.h"
#include "pictures/convert.h"
#include "pictures/file.h"
#include "pictures/jpg/reader.h"
#include "pictures/scale/resize.h"

namespace vistrel::bench {
namespace {

using Bytes = std::vector<std::uint8_t>;

// `mostEighths`: how far the picture may be enlarged (16, the library's limit) or not (8).
pictures::RgbPicture DecodeByTurbo(const Bytes& file, unsigned mostEighths) {
    jpeg_decompress_struct reader;
    jpeg_error_mgr errors;
    reader.err = jpeg_std_error(&errors);  // ends the program on an error
    jpeg_create_decompress(&reader);
    jpeg_mem_src(&reader, file.data(), file.size());
    jpeg_read_header(&reader, TRUE);
    reader.out_color_space = JCS_RGB;
    reader.scale_denom = 8;
    for (unsigned eighths = 1; eighths <= mostEighths; ++eighths) {
        reader.scale_num = eighths;
        if (reader.image_width * eighths >= 8 * 2 * pictures::kLogoWidth &&
            reader.image_height * eighths >= 8 * 2 * pictures::kLogoHeight) {
            break;
        }
    }
    jpeg_start_decompress(&reader);
    pictures::RgbPicture picture;
    picture.width = int(reader.output_width);
    picture.height = int(reader.output_height);
    const std::size_t rowBytes = std::size_t(picture.width) * 3;
    picture.pixels.resize(rowBytes * picture.height);
    while (reader.output_scanline < reader.output_height) {
        JSAMPROW row = &picture.pixels[rowBytes * reader.output_scanline];
        jpeg_read_scanlines(&reader, &row, 1);
    }
    jpeg_finish_decompress(&reader);
    jpeg_destroy_decompress(&reader);
    return picture;
}

Bytes FileOf(const std::string& path) {
    auto file = pictures::ReadWholeFile(path);
    if (!file) std::abort();
    return *std::move(file);
}

void ConvertTheirs(const std::string& source, const std::string& target) {
    const pictures::RgbPicture decoded = DecodeByTurbo(FileOf(source), 8);
    const pictures::RgbPicture scaled =
        scale::Resize(decoded, pictures::kLogoWidth, pictures::kLogoHeight);
    const IndexedPicture reduced = ReduceByImagequant(
        WithAlpha(scaled.pixels), pictures::kLogoWidth, pictures::kLogoHeight, 4);
    Bytes palette(256 * 4);
    for (std::size_t i = 0; i < reduced.palette.size(); ++i) {
        for (int c = 0; c < 3; ++c) palette[4 * i + 2 - c] = reduced.palette[i][c];
    }
    if (!pictures::WriteWholeFile(
            target, bmp::ColormappedBmp(reduced.indices.data(), pictures::kLogoWidth,
                                        pictures::kLogoHeight, 256, palette.data()))) {
        std::abort();
    }
}

template <class Action>
double TimeOf(Action action) {
    const double start = ProcessorTime();
    action();
    return ProcessorTime() - start;
}

}  // namespace

WholeWayTimes MeasureWholeWay(const std::string& source, const std::string& target, int times) {
    const Bytes file = FileOf(source);
    const auto measure = [&] {
        return WholeWayTimes{
            TimeOf([&] { jpg::ReadJpgScaled(file, pictures::kLogoWidth, pictures::kLogoHeight); }),
            TimeOf([&] { DecodeByTurbo(file, 16); }), TimeOf([&] { DecodeByTurbo(file, 8); }),
            TimeOf([&] { pictures::ConvertToLogo(source, target); }),
            TimeOf([&] { ConvertTheirs(source, target); })};
    };
    measure();
    WholeWayTimes least = measure();
    for (int i = 1; i < times; ++i) {
        const WholeWayTimes next = measure();
        least.decodingOurs = std::min(least.decodingOurs, next.decodingOurs);
        least.decodingTwice = std::min(least.decodingTwice, next.decodingTwice);
        least.decodingWhole = std::min(least.decodingWhole, next.decodingWhole);
        least.wholeOurs = std::min(least.wholeOurs, next.wholeOurs);
        least.wholeTheirs = std::min(least.wholeTheirs, next.wholeTheirs);
    }
    return least;
}

}  // namespace vistrel::bench
