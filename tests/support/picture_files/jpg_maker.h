// Makes JPEG files of every kind by libjpeg, and decodes them by it: the judge of our own reader.
#pragma once

#include <gtest/gtest.h>
#include <stdio.h>  // jpeglib.h wants it
// No other place: jpeglib.h needs what stands above.
#include <jpeglib.h>

#include <csetjmp>
#include <cstdlib>
#include <utility>
#include <vector>

#include "pictures/rgb_picture.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

/// How a file is to be made.
struct JpgOptions {
    int quality = 85;
    J_COLOR_SPACE color = JCS_YCbCr;
    /// Sampling factors across and down of each component; 1 x 1 where missing.
    std::vector<std::pair<int, int>> sampling;
    bool progressive = false;
    bool separateScans = false;  ///< one scan for each component, in a sequential file
    bool arithmetic = false;
    bool ownTables = false;  ///< Huffman tables made for the picture
    unsigned restartMcus = 0;
};

/// Ends the test program on an error: these files are made to be right.
inline void FailAtLibraryError(j_common_ptr info) {
    char text[JMSG_LENGTH_MAX];
    info->err->format_message(info, text);
    ADD_FAILURE() << text;
    std::abort();
}

inline Bytes MakeJpg(const pictures::RgbPicture& picture, const JpgOptions& options) {
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    errors.error_exit = FailAtLibraryError;
    jpeg_create_compress(&info);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &memory, &size);
    const bool isInk = options.color == JCS_CMYK || options.color == JCS_YCCK;
    info.image_width = static_cast<JDIMENSION>(picture.width);
    info.image_height = static_cast<JDIMENSION>(picture.height);
    info.input_components = isInk ? 4 : 3;
    info.in_color_space = isInk ? JCS_CMYK : JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, options.color);
    jpeg_set_quality(&info, options.quality, FALSE);
    for (int i = 0; i < info.num_components; ++i) {
        const bool given = static_cast<std::size_t>(i) < options.sampling.size();
        info.comp_info[i].h_samp_factor = given ? options.sampling[i].first : 1;
        info.comp_info[i].v_samp_factor = given ? options.sampling[i].second : 1;
    }
    info.restart_interval = options.restartMcus;
    info.arith_code = options.arithmetic;
    info.optimize_coding = options.ownTables;
    std::vector<jpeg_scan_info> scans;
    if (options.progressive) {
        jpeg_simple_progression(&info);
    } else if (options.separateScans) {
        for (int i = 0; i < info.num_components; ++i) scans.push_back({1, {i}, 0, 63, 0, 0});
        info.scan_info = scans.data();
        info.num_scans = info.num_components;
    }
    jpeg_start_compress(&info, TRUE);
    Bytes row(static_cast<std::size_t>(picture.width) * 4);
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* rgb =
            picture.pixels.data() + static_cast<std::size_t>(y) * picture.width * 3;
        for (int x = 0; x < picture.width; ++x) {
            for (int i = 0; i < 3; ++i) row[x * info.input_components + i] = rgb[x * 3 + i];
            if (isInk) row[x * 4 + 3] = static_cast<std::uint8_t>(255 - (x + y) % 100);
        }
        JSAMPROW rows = row.data();
        jpeg_write_scanlines(&info, &rows, 1);
    }
    jpeg_finish_compress(&info);
    Bytes file(memory, memory + size);
    jpeg_destroy_compress(&info);
    std::free(memory);
    return file;
}

/// What libjpeg makes of the file, inks with and without an Adobe segment as our reader takes them.
inline pictures::RgbPicture DecodeByLibrary(const Bytes& file) {
    jpeg_decompress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    errors.error_exit = FailAtLibraryError;
    errors.output_message = [](j_common_ptr) {};
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, file.data(), file.size());
    jpeg_read_header(&info, TRUE);
    const bool isInk = info.num_components == 4;
    info.out_color_space = isInk ? JCS_CMYK : JCS_RGB;
    info.do_block_smoothing = FALSE;
    jpeg_start_decompress(&info);
    pictures::RgbPicture picture;
    picture.width = static_cast<int>(info.output_width);
    picture.height = static_cast<int>(info.output_height);
    Bytes row(static_cast<std::size_t>(picture.width) * 4);
    while (info.output_scanline < info.output_height) {
        JSAMPROW rows = row.data();
        jpeg_read_scanlines(&info, &rows, 1);
        for (int x = 0; x < picture.width; ++x) {
            for (int i = 0; i < 3; ++i) {
                if (!isInk) {
                    picture.pixels.push_back(row[x * 3 + i]);
                    continue;
                }
                const int none = info.saw_Adobe_marker ? 0 : 255;
                const int ink = std::abs(none - row[x * 4 + i]);
                const int black = std::abs(none - row[x * 4 + 3]);
                picture.pixels.push_back(static_cast<std::uint8_t>((ink * black + 127) / 255));
            }
        }
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    return picture;
}

/// The position of the first marker 0xFF `marker` in a file, which must have one.
inline std::size_t MarkerAt(const Bytes& file, int marker) {
    std::size_t at = 2;
    while (at + 4 <= file.size() && file[at + 1] != marker) {
        at += 2 + static_cast<std::size_t>(file[at + 2] << 8 | file[at + 3]);
    }
    EXPECT_LT(at + 4, file.size());
    return at;
}

/// The file with `bytes` before position `at`.
inline Bytes WithInserted(Bytes file, std::size_t at, const Bytes& bytes) {
    file.insert(file.begin() + static_cast<std::ptrdiff_t>(at), bytes.begin(), bytes.end());
    return file;
}

/// The file with an EXIF segment that gives `orientation`, before position `at`.
inline Bytes WithOrientation(const Bytes& file, int orientation, bool bigEndian,
                             std::size_t at = 2) {
    const auto number = [bigEndian](int value, int bytes) {
        Bytes result;
        for (int i = 0; i < bytes; ++i) {
            const int place = bigEndian ? bytes - 1 - i : i;
            result.push_back(static_cast<std::uint8_t>(value >> (8 * place)));
        }
        return result;
    };
    Bytes segment = {0xFF, 0xE1, 0, 0, 'E', 'x', 'i', 'f', 0, 0};
    const auto add = [&segment](const Bytes& bytes) {
        segment.insert(segment.end(), bytes.begin(), bytes.end());
    };
    add(bigEndian ? Bytes{'M', 'M'} : Bytes{'I', 'I'});
    add(number(42, 2));
    add(number(8, 4));
    add(number(2, 2));  // entries: the picture's width, which nobody needs, and the orientation
    add(number(0x0100, 2)), add(number(4, 2)), add(number(1, 4)), add(number(77, 4));
    add(number(0x0112, 2)), add(number(3, 2)), add(number(1, 4));
    add(number(orientation, 2)), add(number(0, 2));
    add(number(0, 4));
    segment[3] = static_cast<std::uint8_t>(segment.size() - 2);
    return WithInserted(file, at, segment);
}

}  // namespace vistrel::test
