// preview-bench SCREEN WIDTH HEIGHT STEP: runs one step of showing a screen with WIDTH x HEIGHT
// pixels, by the loops of a Pentium, for a program that counts instructions; see count_previews.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "bench/pictures/run_once.h"
#include "pictures/file.h"
#include "pictures/loops/loops.h"
#include "pictures/scale/resize.h"
#include "pictures/screen/display_dither.h"
#include "pictures/screen/screen_preview.h"
#include "thumbnails/cache.h"

namespace vistrel::bench {
namespace {

/// As a preview or a thumbnail is read: from the disk, piece by piece.
std::optional<pictures::ScaledPicture> Read(const std::string& path, int width, int height) {
    return pictures::ReadInPieces(path, [&](const pictures::PictureFile& file) {
        return screen::PreviewOfScreen(file, width, height);
    });
}

int Run(const std::string& path, int width, int height, const std::string& step) {
    loops::Force(loops::Kind::Singles);
    const auto preview = Read(path, width, height);
    const auto kept = Read(path, thumbnails::kKeptWidth, thumbnails::kKeptHeight);
    if (!preview || !kept) {
        std::fprintf(stderr, "preview-bench: %s is no screen\n", path.c_str());
        return 1;
    }
    thumbnails::Cache cache(path + ".cache");
    const thumbnails::Source source{path, 1, 1};
    if (step != "Keep") cache.Keep(source, kept->picture);
    if (step == "Read") RunOnce([&] { Read(path, width, height); });
    if (step == "Dither")
        RunOnce(
            [&] { screen::DitherToDisplayColors(preview->picture.pixels.data(), width, height); });
    if (step == "Keep") RunOnce([&] { cache.Keep(source, kept->picture); });
    if (step == "Find") RunOnce([&] { cache.Find(source); });
    if (step == "Scale") RunOnce([&] { scale::Resize(kept->picture, width, height); });
    std::filesystem::remove(path + ".cache");
    return 0;
}

}  // namespace
}  // namespace vistrel::bench

int main(int count, char** arguments) {
    if (count != 5) return 1;
    return vistrel::bench::Run(arguments[1], std::atoi(arguments[2]), std::atoi(arguments[3]),
                               arguments[4]);
}
