// The startup screens of the sample sets that move: shown step by step as the system does.
#include <gtest/gtest.h>

#include "pictures/file.h"
#include "pictures/screen/check.h"
#include "tests/pictures/screen/system_screen.h"

namespace vistrel::test {
namespace {

struct Sample {
    const char* set;
    int colors;       ///< how many move
    int top, bottom;  ///< rows in which something moves, the last not among them
    double least;     ///< share of the screen that moves, in hundredths, at least and at most
    double most;
};

constexpr Sample kSamples[] = {{"Night Sky", 32, 8, 300, 0.05, 2},
                               {"City Lights", 64, 148, 308, 1, 10},
                               {"Sunny Day", 32, 0, 330, 10, 60},
                               {"Deep Sea", 48, 0, 372, 30, 90}};

std::vector<std::uint8_t> StartupOf(const std::string& set) {
    const auto file = pictures::ReadWholeFile("sets\\" + set + "\\LOGO.SYS");
    EXPECT_TRUE(file) << set;
    return file.value_or(std::vector<std::uint8_t>{});
}

class MovingSample : public testing::TestWithParam<Sample> {};

TEST_P(MovingSample, IsAScreenThatWindowsShows) {
    const std::vector<std::uint8_t> file = StartupOf(GetParam().set);
    SystemScreen::ExpectHeader(file);
    EXPECT_TRUE(screen::FaultsOfScreen(file).empty());
    EXPECT_EQ(SystemScreen(file).First(), 256 - GetParam().colors);
}

TEST_P(MovingSample, MovesWhereItIsMeantTo) {
    const SystemScreen screen(StartupOf(GetParam().set));
    int moving = 0;
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 320; ++x) {
            if (!screen.Moves(x, y)) continue;
            ++moving;
            EXPECT_TRUE(y >= GetParam().top && y < GetParam().bottom) << x << "," << y;
        }
    }
    const double share = 100.0 * moving / (320 * 400);
    EXPECT_GE(share, GetParam().least);
    EXPECT_LE(share, GetParam().most);
}

// Each frame is another one, until the colours have gone round; and what stands stands in all.
TEST_P(MovingSample, ChangesAtEachStepAndComesRound) {
    SystemScreen screen(StartupOf(GetParam().set));
    const std::vector<std::uint8_t> first = screen.Frame();
    std::vector<std::uint8_t> before = first;
    for (int step = 1; step <= GetParam().colors; ++step) {
        screen.Step();
        const std::vector<std::uint8_t> now = screen.Frame();
        EXPECT_NE(now, before) << step;
        for (std::size_t i = 0; i < now.size(); ++i) {
            const int pixel = static_cast<int>(i / 3);
            if (now[i] == first[i] || screen.Moves(pixel % 320, pixel / 320)) continue;
            ADD_FAILURE() << "what stands has changed at " << i;
            return;
        }
        before = now;
    }
    EXPECT_EQ(before, first);
}

INSTANTIATE_TEST_SUITE_P(All, MovingSample, testing::ValuesIn(kSamples), [](const auto& tested) {
    std::string name = tested.param.set;
    std::erase(name, ' ');
    return name;
});

TEST(Samples, OfOtherSetsStand) {
    for (const char* set :
         {"Green Hills", "Typewriter", "Weave", "Sunrise.SLS", "Circuit.SLS", "Marbles.SLS"})
        EXPECT_EQ(SystemScreen(StartupOf(set)).First(), 0) << set;
}

}  // namespace
}  // namespace vistrel::test
