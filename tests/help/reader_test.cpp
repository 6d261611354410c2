// The reader that judges the compiler, judged itself by a file that viewers are known to open.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/help/help_reader.h"
#include "tests/help/tiny_help_file.h"

namespace vistrel::help_test {
namespace {

TEST(HelpReader, ReadsAFileKnownToBeRight) {
    const ReadHelp help = ReadHelpFile(TinyHelpFile());
    EXPECT_EQ(help.title, "Tiny");
    EXPECT_EQ(help.contents, 0u);
    ASSERT_EQ(help.topics.size(), 2u);
    EXPECT_EQ(help.topics[0].title, "Tiny");
    EXPECT_EQ(help.topics[1].title, "Tutorial");
    EXPECT_EQ(help.topics[1].offset, 0x15u);
    EXPECT_EQ(help.topics[1].paragraphs[0].text, "Step 1");
    EXPECT_EQ(help.TopicOfNumber(30), &help.topics[1]);
    ASSERT_EQ(help.topics[0].paragraphs.size(), 2u);
    EXPECT_EQ(help.topics[0].paragraphs[1].text, "See here.");
    const ReadLink& link = help.topics[0].paragraphs[1].links.at(0);
    EXPECT_EQ(link.text, "here");
    EXPECT_FALSE(link.popup);
    EXPECT_EQ(help.TopicOfLink(link), &help.topics[1]);
    ASSERT_EQ(help.fonts.size(), 2u);
    EXPECT_EQ(help.fonts[0].face, "Arial");
    EXPECT_EQ(help.fonts[0].halfPoints, 20u);
    EXPECT_EQ(help.fonts[1].attributes, 1u);
}

struct Damage {
    const char* what;
    std::size_t place;
    char byte;

    friend void PrintTo(const Damage& damage, std::ostream* out) { *out << damage.what; }
};

class DamagedHelpFile : public testing::TestWithParam<Damage> {};

TEST_P(DamagedHelpFile, IsRefused) {
    std::string file = TinyHelpFile();
    file[GetParam().place] = GetParam().byte;
    EXPECT_THROW(ReadHelpFile(file), BadHelpFile);
}

INSTANTIATE_TEST_SUITE_P(
    HelpReader, DamagedHelpFile,
    testing::Values(Damage{"magic", 0x00, 0}, Damage{"file size", 0x0C, 0},
                    Damage{"reserved space", 0x10, 0}, Damage{"contents", 0x32, 1},
                    Damage{"first record of the block", 0x5A, 0},
                    Damage{"previous record", 0x9F, 0}, Damage{"topic size", 0x77, 0},
                    Damage{"start of the text", 0x8B, 0}, Damage{"paragraph length", 0xAE, 0},
                    Damage{"number of texts", 0xEC, 0}, Damage{"hash of a link", 0xE4, 0},
                    Damage{"topic of a number", 0x1E5, 0x14}, Damage{"title", 0x224, 'X'},
                    Damage{"unused bytes of a page", 0xA47, 0},
                    Damage{"order of keys", 0xA52, 0x7F}, Damage{"entry count", 0x272, 1},
                    Damage{"offset of a file", 0x1287, 0}),
    [](const auto& info) {
        std::string name = info.param.what;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });

TEST(HelpReader, RefusesAFileCutShortAnywhere) {
    const std::string file = TinyHelpFile();
    for (std::size_t size = 0; size < file.size(); size += 7)
        EXPECT_THROW(ReadHelpFile(file.substr(0, size)), BadHelpFile) << size;
}

}  // namespace
}  // namespace vistrel::help_test
