// A screen as the operating system reads and moves it, written once more from what is known of the
// file: it shares nothing with the program.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace vistrel::test {

class SystemScreen {
 public:
    using Color = std::array<std::uint8_t, 3>;  // red, green, blue
    static constexpr std::size_t kFileSize = 129078;

    explicit SystemScreen(std::vector<std::uint8_t> file) : file_(std::move(file)) {
        file_.resize(std::max(file_.size(), kFileSize));
    }

    /// What each field of the two headers has to be, but the number of the first moving colour.
    static void ExpectHeader(const std::vector<std::uint8_t>& file) {
        ASSERT_EQ(file.size(), kFileSize);
        const auto number = [&](std::size_t at, int bytes) {
            std::uint32_t value = 0;
            for (int i = bytes; i-- > 0;) value = value << 8 | file[at + std::size_t(i)];
            return value;
        };
        EXPECT_EQ(number(0, 2), 0x4D42u);                          // "BM"
        EXPECT_EQ(number(2, 4), kFileSize);                        // the file's size
        EXPECT_EQ(number(10, 4), 1078u);                           // where the pixels begin
        EXPECT_EQ(number(14, 4), 40u);                             // the header's size
        EXPECT_EQ(number(18, 4), 320u);                            // width
        EXPECT_EQ(number(22, 4), 400u);                            // height, rows from the bottom
        EXPECT_EQ(number(26, 2), 1u);                              // planes
        EXPECT_EQ(number(28, 2), 8u);                              // bits a pixel
        EXPECT_EQ(number(30, 4), 0u);                              // not compressed
        EXPECT_LT(number(50, 4), 256u);                            // the first moving colour
        EXPECT_TRUE(number(46, 4) == 0 || number(46, 4) == 256u);  // colours in use
    }

    int First() const { return file_[50]; }

    /// The number that a pixel has; rows from the top.
    int Entry(int x, int y) const {
        return file_[1078 + std::size_t(399 - y) * 320 + std::size_t(x)];
    }

    bool Moves(int x, int y) const { return First() > 0 && Entry(x, y) >= First(); }

    Color Shown(int entry) const {
        const std::size_t at = 54 + std::size_t(entry) * 4;
        return {file_[at + 2], file_[at + 1], file_[at]};
    }

    Color Shown(int x, int y) const { return Shown(Entry(x, y)); }

    /// Each entry from the first moving one takes what the next higher one had, the last what the
    /// first had.
    void Step() {
        if (First() == 0) return;
        const Color first = Shown(First());
        for (int entry = First(); entry < 255; ++entry) Set(entry, Shown(entry + 1));
        Set(255, first);
    }

    /// All of the screen: red, green, blue, rows from the top.
    std::vector<std::uint8_t> Frame() const {
        std::vector<std::uint8_t> pixels(std::size_t{320} * 400 * 3);
        std::uint8_t* out = pixels.data();
        for (std::size_t y = 0; y < 400; ++y) {
            const std::uint8_t* const row = &file_[1078 + (399 - y) * 320];
            for (std::size_t x = 0; x < 320; ++x, out += 3) {
                const std::uint8_t* const color = &file_[54 + std::size_t{row[x]} * 4];
                out[0] = color[2], out[1] = color[1], out[2] = color[0];
            }
        }
        return pixels;
    }

 private:
    void Set(int entry, const Color& color) {
        for (std::size_t c = 0; c < 3; ++c) file_[54 + std::size_t(entry) * 4 + c] = color[2 - c];
    }

    std::vector<std::uint8_t> file_;
};

}  // namespace vistrel::test
