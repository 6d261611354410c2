// What logo-convert makes of its options, what it says and with which status it ends.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <sstream>

#include "pictures/file.h"
#include "tests/pictures/compose/scene.h"
#include "tests/pictures/screen/system_screen.h"

namespace vistrel::test {

using namespace pictures;
using namespace reduce;

namespace {

using compose::Composition;
using compose::FramingKind;

struct Outcome {
    int status = -1;
    std::string text;  ///< of both streams
};

class LogoConvertTest : public testing::Test {
 protected:
    LogoConvertTest()
        : source_(folder_.Save("scene.bmp", BmpOf(MakeScene(500, 220)))),
          target_(folder_.PathOf("logo.sys")) {}

    static Outcome Run(const std::string& arguments) {
        std::FILE* const pipe = popen(("'" LOGO_CONVERT "' " + arguments + " 2>&1").c_str(), "r");
        Outcome outcome;
        for (int c; (c = std::fgetc(pipe)) != EOF;) outcome.text.push_back(static_cast<char>(c));
        const int status = pclose(pipe);
        outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return outcome;
    }

    Outcome Convert(const std::string& options) const {
        return Run(options + " '" + source_ + "' '" + target_ + "'");
    }

    /// Expects the screen that a composition gives.
    void ExpectMakes(const std::string& options, const std::function<void(Composition&)>& set) {
        const Outcome outcome = Convert(options);
        EXPECT_EQ(outcome.status, 0) << options << ": " << outcome.text;
        EXPECT_EQ(outcome.text, "") << options;
        Composition composition;
        set(composition);
        const std::string wanted = folder_.PathOf("wanted.sys");
        ASSERT_EQ(compose::MakeScreen(source_, wanted, composition), ConversionResult::Written);
        EXPECT_EQ(ReadWholeFile(target_), ReadWholeFile(wanted)) << options;
        std::remove(target_.c_str());
    }

    /// Expects a complaint that says `what`, and no file.
    void ExpectComplains(const std::string& options, const std::string& what, int status = 2) {
        const Outcome outcome = Convert(options);
        EXPECT_EQ(outcome.status, status) << options;
        EXPECT_NE(outcome.text.find(what), std::string::npos) << options << ": " << outcome.text;
        EXPECT_FALSE(std::filesystem::exists(target_)) << options;
    }

    Folder folder_;
    std::string source_;
    std::string target_;
};

TEST_F(LogoConvertTest, WithoutOptionsItConverts) {
    ASSERT_EQ(Convert("").status, 0);
    const std::string wanted = folder_.PathOf("wanted.sys");
    ASSERT_EQ(TryConvertToLogo(source_, wanted), ConversionResult::Written);
    EXPECT_EQ(ReadWholeFile(target_), ReadWholeFile(wanted));
}

TEST_F(LogoConvertTest, EachFramingIsDone) {
    ExpectMakes("--fill", [](Composition& c) { c.framing.kind = FramingKind::Fill; });
    ExpectMakes("--fit black", [](Composition& c) { c.framing.kind = FramingKind::Fit; });
    ExpectMakes("--fit white", [](Composition& c) {
        c.framing.kind = FramingKind::Fit;
        c.framing.borderColor = {255, 255, 255};
    });
    for (const char* color : {"--fit 1a2BfF", "--fit '#1A2bff'"}) {
        ExpectMakes(color, [](Composition& c) {
            c.framing.kind = FramingKind::Fit;
            c.framing.borderColor = {0x1A, 0x2B, 0xFF};
        });
    }
    ExpectMakes("--fit blur", [](Composition& c) {
        c.framing.kind = FramingKind::Fit;
        c.framing.border = compose::Border::BlurredEdge;
    });
    ExpectMakes("--crop 10,-5,200,100",
                [](Composition& c) { c.crop = compose::Crop{10, -5, 200, 100}; });
}

TEST_F(LogoConvertTest, EachTurnIsDone) {
    for (int quarters = 0; quarters < 4; ++quarters)
        ExpectMakes("--turn " + std::to_string(quarters * 90),
                    [&](Composition& c) { c.orientation.quarterTurns = quarters; });
    ExpectMakes("--mirror", [](Composition& c) { c.orientation.mirrored = true; });
}

TEST_F(LogoConvertTest, EachLightIsDone) {
    ExpectMakes("--brightness 20", [](Composition& c) { c.light.brightness = 20; });
    ExpectMakes("--contrast -30", [](Composition& c) { c.light.contrast = -30; });
    ExpectMakes("--gamma 140", [](Composition& c) { c.light.gamma = 140; });
    ExpectMakes("--saturation 55", [](Composition& c) { c.light.saturation = 55; });
    ExpectMakes("--auto", [](Composition& c) { c.light.autoLevels = true; });
}

TEST_F(LogoConvertTest, EachStrengthOfDitheringIsDone) {
    ExpectMakes("--dither none", [](Composition& c) { c.dither = Dither::Off; });
    ExpectMakes("--dither light", [](Composition& c) { c.dither = Dither::Light; });
    ExpectMakes("--dither medium", [](Composition& c) { c.dither = Dither::Medium; });
    ExpectMakes("--dither strong", [](Composition& c) { c.dither = Dither::Strong; });
}

TEST_F(LogoConvertTest, OptionsGoTogetherAndStandAnywhere) {
    const Outcome outcome =
        Run("--turn 90 '" + source_ + "' --fill --gamma 120 '" + target_ + "' --crop 0,0,200,400");
    ASSERT_EQ(outcome.status, 0) << outcome.text;
    Composition composition;
    composition.orientation.quarterTurns = 1;
    composition.framing.kind = FramingKind::Fill;
    composition.light.gamma = 120;
    composition.crop = compose::Crop{0, 0, 200, 400};
    const std::string wanted = folder_.PathOf("wanted.sys");
    ASSERT_EQ(compose::MakeScreen(source_, wanted, composition), ConversionResult::Written);
    EXPECT_EQ(ReadWholeFile(target_), ReadWholeFile(wanted));
}

TEST_F(LogoConvertTest, HelpFitsAScreenOf80By25Characters) {
    const Outcome help = Run("--help");
    EXPECT_EQ(help.status, 0);
    std::istringstream lines(help.text);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) EXPECT_LT(line.size(), 80u) << line;
    EXPECT_LT(count, 25);
    for (const char* option :
         {"--info", "--rgb", "--check", "--mend", "--repeat", "--fill", "--fit", "--crop", "--turn",
          "--mirror", "--brightness", "--contrast", "--gamma", "--saturation", "--auto", "--dither",
          "--bar", "--frames"}) {
        EXPECT_NE(help.text.find(option), std::string::npos) << option;
    }
}

TEST_F(LogoConvertTest, WrongOptionsAreNamedWithWhatIsWanted) {
    ExpectComplains("--brighter 5", "--brighter: there is no such option");
    ExpectComplains("--brightness 101",
                    "--brightness wants a number from -100 to 100, not \"101\"");
    ExpectComplains("--contrast x", "--contrast wants a number from -100 to 100, not \"x\"");
    ExpectComplains("--saturation 5%", "--saturation wants");
    ExpectComplains("--gamma 9", "--gamma wants a number from 10 to 500, not \"9\"");
    ExpectComplains("--turn 45", "--turn wants 0, 90, 180 or 270, not \"45\"");
    ExpectComplains("--dither much", "--dither wants none, light, medium or strong");
    for (const char* color : {"red", "12345", "1234567", "12345g", "#", "-12345"})
        ExpectComplains(std::string("--fit '") + color + "'", "--fit wants black, white");
    for (const char* crop : {"1,2,3", "1,2,3,4,5", "1,2,3,", "1,2,0,4", "1,2,3,-4", "a,b,c,d", ""})
        ExpectComplains(std::string("--crop '") + crop + "'", "--crop wants four numbers");
    ExpectComplains("--fill --fit black", "--fill and --fit do not go together");
    for (const char* bar : {"", "line", "comet,384,16", "comet,400,1,20", "comet,0,0,20",
                            "comet,0,9,1", "comet,0,9,65", "comet,0,9,20,black",
                            "comet,0,9,20,black,red", "comet,0,9,20,,", "comet,"})
        ExpectComplains(std::string("--bar '") + bar + "'", "--bar wants KIND[,Y,H,N");
    ExpectComplains("--frames 0", "--frames wants a number from 1 to 255, not \"0\"");
    ExpectComplains("another.bmp", "a picture and a target are wanted");
}

TEST_F(LogoConvertTest, AnOptionWithoutItsValueIsNamed) {
    const Outcome outcome = Run("a.bmp b.sys --gamma");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.text.find("--gamma wants a number from 10 to 500"), std::string::npos);
    EXPECT_EQ(Run("").status, 2);
}

TEST_F(LogoConvertTest, ACropOutsideThePictureIsToldWithItsSize) {
    ExpectComplains("--crop 500,0,10,10", "outside the picture of 500 x 220 pixels", 1);
    ExpectComplains("--turn 90 --crop 0,-50,10,50", "outside the picture of 220 x 500 pixels", 1);
}

TEST_F(LogoConvertTest, FilesThatCannotBeReadOrWrittenAreNamed) {
    const std::string missing = folder_.PathOf("missing.gif");
    const Outcome unread = Run("--fill '" + missing + "' '" + target_ + "'");
    EXPECT_EQ(unread.status, 1);
    EXPECT_NE(unread.text.find(missing + ": cannot be read"), std::string::npos) << unread.text;
    EXPECT_EQ(Run("--crop 0,0,1,1 '" + missing + "' '" + target_ + "'").status, 1);
    const std::string nowhere = folder_.PathOf("none/logo.sys");
    const Outcome unwritten = Run("--fill '" + source_ + "' '" + nowhere + "'");
    EXPECT_EQ(unwritten.status, 1);
    EXPECT_NE(unwritten.text.find(nowhere + ": cannot be written"), std::string::npos);
    EXPECT_EQ(folder_.Files(), 1);
}

TEST_F(LogoConvertTest, AScreensFaultsAreNamedAndMended) {
    const Outcome found = Run("--check '" + source_ + "'");
    EXPECT_EQ(found.status, 1);
    EXPECT_EQ(found.text, source_ + " does not have 8 bits a pixel\n" + source_ +
                              " does not have 320 x 400 pixels\n");
    const Outcome mended = Convert("--mend");
    EXPECT_EQ(mended.status, 0);
    EXPECT_EQ(mended.text, "");
    const Outcome sound = Run("--check '" + target_ + "'");
    EXPECT_EQ(sound.status, 0);
    EXPECT_EQ(sound.text, "");
}

TEST_F(LogoConvertTest, WhatIsNoScreenIsToldAndNotMended) {
    const std::string text = folder_.Save("text.sys", {'n', 'o', 'n', 'e'});
    EXPECT_EQ(Run("--check '" + text + "'").text, text + " is no bitmap\n");
    const Outcome mended = Run("--mend '" + text + "' '" + target_ + "'");
    EXPECT_EQ(mended.status, 1);
    EXPECT_NE(mended.text.find(text + ": is no bitmap"), std::string::npos) << mended.text;
    EXPECT_FALSE(std::filesystem::exists(target_));
    EXPECT_EQ(Run("--check '" + folder_.PathOf("missing.sys") + "'").status, 1);
    EXPECT_EQ(Run("--check '" + text + "' '" + target_ + "'").status, 2);
    EXPECT_EQ(Run("--mend '" + text + "'").status, 2);
}

TEST_F(LogoConvertTest, ABarMovesWhereItWasAskedFor) {
    for (const std::string kind : {"gradient", "pulse", "stripes", "comet", "dots"}) {
        const Outcome outcome = Convert("--fill --bar " + kind + ",300,40,12,102030,white");
        EXPECT_EQ(outcome.status, 0) << outcome.text;
        EXPECT_EQ(outcome.text, "");
        EXPECT_EQ(Run("--check '" + target_ + "'").status, 0) << kind;
        const SystemScreen made(ReadWholeFile(target_).value());
        EXPECT_EQ(made.First(), 244);
        bool moves = false;
        for (int y = 0; y < 400; ++y) {
            for (int x = 0; x < 320; ++x) {
                ASSERT_LE(made.Moves(x, y), y >= 300 && y < 340) << kind;
                moves = moves || made.Moves(x, y);
            }
        }
        EXPECT_TRUE(moves) << kind;
    }
}

TEST_F(LogoConvertTest, ABarOfItsKindAloneLiesAtTheBottomInBlackAndWhite) {
    ASSERT_EQ(Convert("--bar gradient --repeat 1").status, 0);
    const SystemScreen made(ReadWholeFile(target_).value());
    EXPECT_EQ(made.First(), 236);
    for (int x = 0; x < 320; ++x) {
        EXPECT_FALSE(made.Moves(x, 383));
        EXPECT_TRUE(made.Moves(x, 384));
        EXPECT_TRUE(made.Moves(x, 399));
    }
    EXPECT_EQ(made.Shown(236), (SystemScreen::Color{0, 0, 0}));
    EXPECT_EQ(made.Shown(246), (SystemScreen::Color{255, 255, 255}));
}

TEST_F(LogoConvertTest, WhatMovesOnAScreenMovesOnBesideANewBar) {
    ASSERT_EQ(Convert("--bar stripes,0,20,10 --bar dots,50,20,10").status, 0);
    const std::string both = folder_.PathOf("both.sys");
    ASSERT_EQ(Run("--bar comet,380,20,20 '" + target_ + "' '" + both + "'").status, 0);
    const SystemScreen first(ReadWholeFile(target_).value());
    const SystemScreen second(ReadWholeFile(both).value());
    for (int y = 0; y < 380; ++y)
        for (int x = 0; x < 320; ++x) ASSERT_EQ(first.Moves(x, y), second.Moves(x, y)) << x << y;
    EXPECT_TRUE(second.Moves(0, 380));
    EXPECT_TRUE(first.Moves(0, 0));
    EXPECT_FALSE(first.Moves(0, 30));
}

TEST_F(LogoConvertTest, FramesAreWhatTheSystemShowsStepByStep) {
    ASSERT_EQ(Convert("--bar comet,380,20,3").status, 0);
    const Outcome outcome = Run("--frames 4 '" + target_ + "' '" + folder_.PathOf("boot") + "'");
    EXPECT_EQ(outcome.status, 0) << outcome.text;
    EXPECT_EQ(outcome.text, "");
    SystemScreen screen(ReadWholeFile(target_).value());
    for (int i = 1; i <= 4; ++i) {
        const auto file = ReadWholeFile(folder_.PathOf("boot-0" + std::to_string(i) + ".bmp"));
        ASSERT_TRUE(file) << i;
        const SystemScreen frame(*file);
        EXPECT_EQ(frame.First(), 0);
        EXPECT_EQ(frame.Frame(), screen.Frame()) << i;
        screen.Step();
    }
    EXPECT_FALSE(std::filesystem::exists(folder_.PathOf("boot-05.bmp")));
}

TEST_F(LogoConvertTest, FramesOfWhatIsNoScreenAreNotWritten) {
    const Outcome outcome = Run("--frames 2 '" + source_ + "' '" + folder_.PathOf("boot") + "'");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.text.find(source_ + ": is no screen"), std::string::npos) << outcome.text;
    EXPECT_EQ(Run("--bar comet '" + folder_.PathOf("none.bmp") + "' '" + target_ + "'").status, 1);
    EXPECT_EQ(folder_.Files(), 1);
}

TEST_F(LogoConvertTest, InfoAndPixelsAreAsBefore) {
    EXPECT_EQ(Run("--info '" + source_ + "'").text, "500 220 24\n");
    EXPECT_EQ(Run("--rgb '" + source_ + "' '" + target_ + "'").status, 0);
    EXPECT_EQ(ReadWholeFile(target_), MakeScene(500, 220).pixels);
    const Outcome repeated = Convert("--repeat 2 --fill");
    EXPECT_EQ(repeated.status, 0);
    EXPECT_GT(std::atof(repeated.text.c_str()), 0);
}

}  // namespace
}  // namespace vistrel::test
