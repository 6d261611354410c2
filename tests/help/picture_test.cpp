// Pictures in help files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/help/compile.h"

namespace vistrel::help_test {
namespace {

using testing::ElementsAre;

void Put(std::string& bytes, std::uint32_t value, int width) {
    for (int i = 0; i < width; ++i) bytes.push_back(static_cast<char>(value >> 8 * i));
}

// A BMP file whose bytes of palette and rows count up.
std::string Bmp(unsigned bits, std::uint32_t width, std::uint32_t height, std::uint32_t colours) {
    const std::uint32_t rows = (width * bits + 31) / 32 * 4 * height;
    const std::uint32_t tableSize = (colours != 0 ? colours : 1u << bits) * 4;
    std::string file = "BM";
    Put(file, 54 + tableSize + rows, 4);
    Put(file, 0, 4);
    Put(file, 54 + tableSize, 4);
    Put(file, 40, 4);
    Put(file, width, 4);
    Put(file, height, 4);
    Put(file, 1, 2);
    Put(file, bits, 2);
    for (int i = 0; i < 4; ++i) Put(file, 0, 4);
    Put(file, colours, 4);
    Put(file, 0, 4);
    for (std::uint32_t i = 0; i < tableSize + rows; ++i) file.push_back(static_cast<char>(i * 7));
    return file;
}

std::string Source(const std::string& text) {
    return "@help H\n@topic a\n@title A\n" + text + "\n";
}

TEST(HelpPictures, PaletteAndRowsAreTakenOver) {
    for (unsigned bits : {1u, 4u, 8u}) {
        const std::string bmp = Bmp(bits, 37, 5, 0);
        const ReadHelp help = CompileAndRead(Source("{picture:x.bmp}"), {{"x.bmp", bmp}});
        ASSERT_EQ(help.pictures.size(), 1u);
        EXPECT_EQ(help.pictures[0].bits, bits);
        EXPECT_EQ(help.pictures[0].width, 37u);
        EXPECT_EQ(help.pictures[0].height, 5u);
        EXPECT_EQ(help.pictures[0].palette + help.pictures[0].rows, bmp.substr(54));
    }
}

TEST(HelpPictures, ShorterPaletteIsKeptShort) {
    const ReadHelp help =
        CompileAndRead(Source("{picture:x.bmp}"), {{"x.bmp", Bmp(8, 200, 200, 6)}});
    EXPECT_EQ(help.pictures.at(0).palette.size(), 24u);
}

TEST(HelpPictures, OneUsedTwiceIsStoredOnce) {
    const ReadHelp help =
        CompileAndRead(Source("{picture:x.bmp} and {picture:y.bmp}\n\nagain {picture:x.bmp}"),
                       {{"x.bmp", Bmp(1, 8, 8, 0)}, {"y.bmp", Bmp(4, 8, 8, 0)}});
    EXPECT_EQ(help.pictures.size(), 2u);
    EXPECT_THAT(help.topics[0].paragraphs[0].pictures, ElementsAre(0, 1));
    EXPECT_THAT(help.topics[0].paragraphs[1].pictures, ElementsAre(0));
}

struct BadPicture {
    const char* name;
    std::string bmp;
    const char* reason;

    friend void PrintTo(const BadPicture& picture, std::ostream* out) { *out << picture.name; }
};

std::string With(std::string file, std::size_t place, std::uint32_t value, int width) {
    std::string bytes;
    Put(bytes, value, width);
    return file.replace(place, bytes.size(), bytes);
}

class BadHelpPicture : public testing::TestWithParam<BadPicture> {};

TEST_P(BadHelpPicture, IsRefusedAtTheLineThatShowsIt) {
    const Compiled compiled = Compile(Source("Text\n{picture:x.bmp}"), {{"x.bmp", GetParam().bmp}});
    EXPECT_THAT(compiled.errors,
                ElementsAre(std::string("test.txt:5: picture 'x.bmp' ") + GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    HelpPictures, BadHelpPicture,
    testing::Values(
        BadPicture{"NoBmp", "GIF89a and more than fifty-four bytes of what is not a BMP file",
                   "is not a Windows BMP file"},
        BadPicture{"OldHeader", With(Bmp(4, 8, 8, 0), 14, 12, 4), "is not a Windows BMP file"},
        BadPicture{"TrueColour", With(Bmp(8, 8, 8, 0), 28, 24, 2), "has more than 256 colours"},
        BadPicture{"Compressed", With(Bmp(8, 8, 8, 0), 30, 1, 4), "is compressed"},
        BadPicture{"NoWidth", With(Bmp(8, 8, 8, 0), 18, 0, 4),
                   "is empty, too large or stored from the top down"},
        BadPicture{"TopDown", With(Bmp(8, 8, 8, 0), 22, 0xFFFFFFF8, 4),
                   "is empty, too large or stored from the top down"},
        BadPicture{"Palette", With(Bmp(4, 8, 8, 0), 46, 17, 4), "has a damaged palette"},
        BadPicture{"RowsCut", Bmp(8, 8, 8, 0).substr(0, 54 + 1024 + 63), "is cut short"},
        BadPicture{"PaletteCut", Bmp(8, 8, 8, 0).substr(0, 60), "is cut short"},
        BadPicture{"RowsOutside", With(Bmp(8, 8, 8, 0), 10, 0xFFFFFFFF, 4), "is cut short"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(HelpPictures, OneThatIsNotThereIsRefused) {
    EXPECT_THAT(Compile(Source("{picture:x.bmp}")).errors,
                ElementsAre("test.txt:4: picture 'x.bmp' cannot be read"));
}

}  // namespace
}  // namespace vistrel::help_test
