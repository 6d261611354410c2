// A screen as the system takes it, and the same with each mistake that is met with.
#pragma once

#include <algorithm>
#include <functional>

#include "pictures/screen/check.h"
#include "tests/support/picture_files/bmp_file.h"

namespace vistrel::test {

inline constexpr std::size_t kFirstMovingOffset = 50;

/// 320 x 400 pixels of 236 colours that stand, with a bar at the bottom of the 20 others.
inline Bytes ScreenIndices() {
    Bytes indices = MakeIndices(320, 400, 236);
    for (int x = 0; x < 320; ++x) indices[std::size_t(395) * 320 + x] = 236 + x % 20;
    return indices;
}

inline BmpFile SoundScreen() {
    BmpFile file;
    file.width = 320;
    file.height = 400;
    file.bitsPerPixel = 8;
    file.palette = MakePalette(256);
    file.pixels = PackIndices(ScreenIndices(), 320, 400, 8);
    return file;
}

inline void PutFirstMoving(Bytes& file, std::uint32_t first) {
    for (int i = 0; i < 4; ++i) file[kFirstMovingOffset + i] = std::uint8_t(first >> (8 * i));
}

inline Bytes MovingScreen() {
    Bytes file = SoundScreen().Encode();
    PutFirstMoving(file, 236);
    return file;
}

struct BrokenScreen {
    screen::ScreenFault fault;
    Bytes file;
    bool keepsIndices;  ///< whether its colour numbers are to be found in what is mended
    bool moves;         ///< whether it has a part that moves
};

/// `change` is done to a sound screen, which moves where its header has room to say so.
inline Bytes With(const std::function<void(BmpFile&)>& change, bool moves = true) {
    BmpFile file = SoundScreen();
    change(file);
    Bytes bytes = file.Encode();
    if (moves) PutFirstMoving(bytes, 236);
    return bytes;
}

/// The rows from the top instead of the bottom, or the other way round.
inline Bytes TurnedRows(const Bytes& pixels) {
    Bytes turned;
    for (int y = 399; y >= 0; --y)
        turned.insert(turned.end(), pixels.begin() + y * 320, pixels.begin() + (y + 1) * 320);
    return turned;
}

inline std::vector<BrokenScreen> BrokenScreens() {
    using screen::ScreenFault;
    const auto twice = [] {
        const Bytes small = ScreenIndices();
        Bytes large;
        for (int y = 0; y < 800; ++y)
            for (int x = 0; x < 640; ++x) large.push_back(small[std::size_t(y / 2) * 320 + x / 2]);
        return large;
    };
    Bytes count = SoundScreen().Encode();
    PutFirstMoving(count, 256);
    Bytes nothing =
        With([](BmpFile& f) { f.pixels = PackIndices(MakeIndices(320, 400, 236), 320, 400, 8); });
    Bytes cut = MovingScreen();
    cut.resize(cut.size() - 320 * 40);
    return {
        {ScreenFault::RunLengthEncoded, With([](BmpFile& f) {
             f.compression = kBmpRle8;
             f.pixels = EncodeRle(ScreenIndices(), 320, 400, 8);
         }),
         true, true},
        {ScreenFault::NotEightBits,
         With(
             [](BmpFile& f) {
                 f.bitsPerPixel = 24;
                 f.palette.clear();
                 f.pixels = PackRgb24(MakePicture(320, 400));
             },
             false),
         false, false},
        {ScreenFault::NotEightBits,
         With(
             [](BmpFile& f) {
                 f.bitsPerPixel = 4;
                 f.palette.resize(16);
                 f.pixels = PackIndices(MakeIndices(320, 400, 16), 320, 400, 4);
             },
             false),
         false, false},
        {ScreenFault::WrongSize, With([&](BmpFile& f) {
             f.width = 640;
             f.height = 800;
             f.pixels = PackIndices(twice(), 640, 800, 8);
         }),
         true, true},
        {ScreenFault::WrongSize,
         With(
             [](BmpFile& f) {
                 f.width = 100;
                 f.height = 70;
                 f.pixels = PackIndices(MakeIndices(100, 70, 256), 100, 70, 8);
             },
             false),
         false, false},
        {ScreenFault::Os2Header, With([](BmpFile& f) { f.headerSize = 12; }, false), true, false},
        {ScreenFault::LongHeader, With([](BmpFile& f) { f.headerSize = 108; }), true, true},
        {ScreenFault::TopDown, With([](BmpFile& f) {
             f.height = -400;
             f.pixels = TurnedRows(f.pixels);
         }),
         true, true},
        {ScreenFault::ShortPalette, With([](BmpFile& f) {
             f.palette.resize(250);
             f.colorsUsed = 250;
         }),
         true, true},
        {ScreenFault::ShortPixels, cut, false, true},
        {ScreenFault::CountOfColors, count, true, false},
        {ScreenFault::NothingMoves, nothing, false, false},
    };
}

}  // namespace vistrel::test
