// Pictures for the tests of framing, as files and in memory.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>

#include "pictures/compose/stages.h"
#include "tests/pictures/bmp_file.h"
#include "tests/pictures/gif_file.h"
#include "tests/pictures/jpg_maker.h"

namespace vistrel::test {

/// Waves and edges of several sizes, no two corners alike, and a grey pattern that turns by
/// `turn` from a pixel to the next.
inline RgbPicture MakeScene(int width, int height, double turn = 0.7) {
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = static_cast<double>(x) / width, v = static_cast<double>(y) / height;
            const double wave = std::sin(40 * u * v) * std::sin(25 * v - 9 * u);
            const int edge = (x * 7 / width + y * 5 / height) % 2 * 40;
            const double pattern = 20 * std::sin(x * turn) * std::sin(y * turn);
            picture.pixels.push_back(static_cast<std::uint8_t>(110 + 60 * wave + edge + pattern));
            picture.pixels.push_back(static_cast<std::uint8_t>(40 + 150 * u + edge + pattern));
            picture.pixels.push_back(static_cast<std::uint8_t>(200 - 120 * v * u - edge + pattern));
        }
    }
    return picture;
}

inline Bytes BmpOf(const RgbPicture& picture) {
    BmpFile file;
    file.width = picture.width;
    file.height = picture.height;
    file.pixels = PackRgb24(picture);
    return file.Encode();
}

/// A folder of its own for a test's files.
class Folder {
 public:
    Folder() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::temp_directory_path() /
                (std::string("vistrel_compose_") + test->name() + std::to_string(getpid()));
        std::filesystem::create_directory(path_);
    }
    ~Folder() { std::filesystem::remove_all(path_); }

    std::string PathOf(const std::string& name) const { return (path_ / name).string(); }

    std::string Save(const std::string& name, const Bytes& bytes) const {
        std::ofstream(PathOf(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
        return PathOf(name);
    }

    int Files() const {
        int count = 0;
        for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator(path_))
            ++count;
        return count;
    }

 private:
    std::filesystem::path path_;
};

inline compose::Composition WithFraming(compose::FramingKind kind, compose::Orientation turn = {}) {
    compose::Composition composition;
    composition.framing.kind = kind;
    composition.orientation = turn;
    return composition;
}

inline const compose::Orientation kTurns[] = {{0, false}, {1, false}, {2, false}, {3, false},
                                              {0, true},  {1, true},  {2, true},  {3, true}};

}  // namespace vistrel::test
