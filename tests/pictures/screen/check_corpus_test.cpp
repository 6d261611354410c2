// Bitmaps from everywhere are checked as the system would take them, and mended.
#include <gtest/gtest.h>

#include "pictures/bmp/reader.h"
#include "pictures/file.h"
#include "pictures/screen/check.h"
#include "pictures/screen/mend.h"
#include "tests/pictures/corpus.h"
#include "tests/pictures/screen/moving_kinds.h"

namespace vistrel::test {
namespace {

using namespace screen;

using Faults = std::vector<ScreenFault>;

/// Whether the system shows a file as it is meant, as far as its headers and its length say.
bool IsShownBySystem(const Bytes& file) {
    const auto number = [&](std::size_t at, int bytes) {
        std::int64_t value = 0;
        for (int i = bytes; i-- > 0;) value = value << 8 | file[at + std::size_t(i)];
        return value;
    };
    if (file.size() < SystemScreen::kFileSize || number(0, 2) != 0x4D42) return false;
    const std::int64_t colors = number(46, 4);
    return number(14, 4) == 40 && number(18, 4) == 320 && number(22, 4) == 400 &&
           number(28, 2) == 8 && number(30, 4) == 0 && (colors == 0 || colors >= 256) &&
           number(10, 4) >= 1078 && std::int64_t(file.size()) >= number(10, 4) + 128000 &&
           number(50, 4) < 256;
}

/// That a file has no faults when the system shows it, and none any more once it is mended.
void ExpectIsCheckedAndMended(const Bytes& file, const std::string& path) {
    SCOPED_TRACE(path);
    const Faults faults = FaultsOfScreen(file);
    if (faults == Faults{ScreenFault::NotABitmap}) {
        EXPECT_FALSE(MendScreen(file));
        return;
    }
    EXPECT_EQ(faults.empty() || faults == Faults{ScreenFault::NothingMoves}, IsShownBySystem(file));
    const auto mended = MendScreen(file);
    ASSERT_TRUE(mended);
    EXPECT_EQ(FaultsOfScreen(*mended), Faults{});
    EXPECT_TRUE(IsShownBySystem(*mended));
    EXPECT_EQ(MendScreen(*mended), mended);
    if (faults.empty()) {
        EXPECT_EQ(*mended, file);
    }
}

TEST(CheckedCorpus, IsMendedFileByFile) {
    int mended = 0, damaged = 0;
    for (const CorpusFile& file : ReadCorpus(PICTURE_CORPUS, ".bmp")) {
        const std::string path = std::string(PICTURE_CORPUS "/") + file.path;
        const auto bytes = pictures::ReadWholeFile(path);
        ASSERT_TRUE(bytes) << path;
        ExpectIsCheckedAndMended(*bytes, path);
        const bool isBitmap = FaultsOfScreen(*bytes) != Faults{ScreenFault::NotABitmap};
        EXPECT_EQ(isBitmap, bmp::ReadBmp(*bytes).has_value()) << path;
        (isBitmap ? mended : damaged) += 1;
    }
    EXPECT_GT(mended, 100);
    EXPECT_GT(damaged, 20);
}

/// The screens that conversions and movements make of some of the pictures.
TEST(CheckedCorpus, HasNoFaultOnceItIsMadeIntoScreens) {
    const std::vector<CorpusFile> files = ReadCorpus(PICTURE_CORPUS, ".jpg");
    const std::vector<Kind> kinds = Kinds();
    for (std::size_t i = 0; i < files.size(); i += 12) {
        const auto bytes = pictures::ReadWholeFile(std::string(PICTURE_CORPUS "/") + files[i].path);
        const auto scaled = bytes ? ReadScaledByContent(*bytes, 320, 400) : std::nullopt;
        if (!scaled) continue;
        const IndexedScreen still = ScreenOf(scaled->picture);
        const auto moving =
            MakeMovingScreen(MakeMoving(kinds[i % kinds.size()], still, scaled->picture));
        ASSERT_TRUE(moving);
        for (const IndexedScreen& made : {still, *moving}) {
            const Bytes file = ScreenFile(made);
            EXPECT_EQ(FaultsOfScreen(file), Faults{}) << files[i].path;
            ExpectIsCheckedAndMended(file, files[i].path);
        }
    }
}

}  // namespace
}  // namespace vistrel::test
