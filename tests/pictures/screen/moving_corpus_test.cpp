// Every kind of movement on a hundred pictures from everywhere.
#include <gtest/gtest.h>

#include <cstdlib>

#include "pictures/file.h"
#include "tests/pictures/corpus.h"
#include "tests/pictures/screen/moving_kinds.h"

namespace vistrel::test {
namespace {

constexpr std::size_t kPictures = 100;

/// The sound pictures that are no mere icons.
std::vector<std::string> LargePictures() {
    std::vector<std::string> paths;
    for (const char* ending : {".bmp", ".gif", ".jpg"}) {
        for (const CorpusFile& file : ReadCorpus(PICTURE_CORPUS, ending)) {
            if (file.kind != CorpusKind::Good || !file.reference) continue;
            if (file.reference->width < 60 || file.reference->height < 60) continue;
            paths.push_back(std::string(PICTURE_CORPUS "/") + file.path);
        }
    }
    return paths;
}

TEST(MovingCorpus, IsGoodAtEachStep) {
    const std::vector<std::string> paths = LargePictures();
    ASSERT_GE(paths.size(), kPictures);
    const std::vector<Kind> kinds = Kinds();
    // All of them with VISTREL_ALL_KINDS in the environment, which takes minutes.
    const std::size_t every = std::getenv("VISTREL_ALL_KINDS") == nullptr ? 6 : 1;
    for (std::size_t i = 0; i < kPictures; ++i) {
        const std::string& path = paths[i * paths.size() / kPictures];
        const auto bytes = pictures::ReadWholeFile(path);
        ASSERT_TRUE(bytes) << path;
        const auto scaled = ReadScaledByContent(*bytes, 320, 400);
        ASSERT_TRUE(scaled) << path;
        const pictures::RgbPicture& picture = scaled->picture;
        const screen::IndexedScreen base = ScreenOf(picture);
        for (std::size_t k = i % every; k < kinds.size(); k += every)
            ExpectGoodScreen(MakeMoving(kinds[k], base, picture), path + ", " + kinds[k].name);
        const Kind& kind = kinds[i % kinds.size()];
        ExpectGoodScreen(MakeMoving(kind, base, std::nullopt), path + ", merged, " + kind.name);
    }
}

}  // namespace
}  // namespace vistrel::test
