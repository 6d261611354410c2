// What the compiler refuses, and the line it names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/help/compile.h"

namespace vistrel::help_test {
namespace {

using testing::ElementsAre;

struct Refusal {
    const char* name;
    std::string source;  // its first line is line 1
    std::string error;   // without the file's name

    friend void PrintTo(const Refusal& refusal, std::ostream* out) { *out << refusal.name; }
};

const std::string kStart = "@help H\n@topic a\n@title A\n";  // lines 1 to 3

class RefusedHelp : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedHelp, NamesLineAndReason) {
    const Compiled compiled = Compile(GetParam().source);
    EXPECT_THAT(compiled.errors, ElementsAre("test.txt:" + GetParam().error));
    EXPECT_EQ(compiled.file, "");
}

INSTANTIATE_TEST_SUITE_P(
    Links, RefusedHelp,
    testing::Values(
        Refusal{"Broken", kStart + "Text\nmore {jump:nowhere|link}.\n",
                "5: there is no topic 'nowhere' to link to"},
        Refusal{"BrokenPopup", kStart + "{popup:nowhere|link}\n",
                "4: there is no topic 'nowhere' to link to"},
        Refusal{"TargetIsNoName", kStart + "{jump:a b|link}\n",
                "4: there is no topic 'a b' to link to"},
        Refusal{"JumpToPopup", kStart + "{jump:p|link}\n@popup p\n@title P\nT\n",
                "4: 'p' is a pop-up topic; use {popup:"},
        Refusal{"PopupOfTopic", kStart + "{popup:a|link}\n",
                "4: 'a' is not a pop-up topic; use {jump:"},
        Refusal{"WithoutText", kStart + "{jump:a}\n", "4: a link needs a text: {jump:topic|text}"},
        Refusal{"Nested", kStart + "{jump:a|x {jump:a|y}}\n", "4: a link inside a link"}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Names, RefusedHelp,
    testing::Values(
        Refusal{"NumberTwice", kStart + "@number 30\nT\n@topic b\n@title B\n@number 30\nT\n",
                "8: number 30 is already that of topic 'a' (test.txt:4)"},
        Refusal{"TopicTwice", kStart + "T\n@topic a\n@title B\nT\n",
                "5: topic 'a' has the name or the hash of topic 'a' (test.txt:2)"},
        Refusal{"TopicTwiceInOtherCase", kStart + "T\n@topic A\n@title B\nT\n",
                "5: topic 'A' has the name or the hash of topic 'a' (test.txt:2)"},
        // Both have the hash C43E84A6.
        Refusal{"SameHash",
                kStart + "T\n@topic sacpirpf\n@title B\nT\n@topic dvolkgqx\n@title C\nT\n",
                "8: topic 'dvolkgqx' has the name or the hash of topic 'sacpirpf' (test.txt:5)"},
        Refusal{"HashZero", kStart + "T\n@topic avrdvysi\n@title B\nT\n",
                "5: 'avrdvysi' has the hash 0; rename it"},
        Refusal{"BadTopicName", kStart + "T\n@topic my topic\n@title B\nT\n",
                "5: 'my topic' is no topic name: only letters, digits, '.' and '_'"},
        Refusal{"KeywordTwice", kStart + "@keyword Set\nT\n@topic b\n@title B\n@keyword set\nT\n",
                "8: keyword 'set' already leads to topic 'a' (test.txt:2)"},
        Refusal{"BadKeyword", kStart + "@keyword a-b\nT\n",
                "4: a keyword has only letters, digits and blanks: 'a-b'"},
        Refusal{"LongKeyword", kStart + "@keyword " + std::string(256, 'k') + "\nT\n",
                "4: the keyword is too long"},
        Refusal{"NoNumber", kStart + "@number thirty\nT\n", "4: 'thirty' is not a context number"},
        Refusal{"NegativeNumber", kStart + "@number -1\nT\n", "4: '-1' is not a context number"},
        Refusal{"TwoNumbers", kStart + "@number 1\n@number 2\nT\n", "5: @number is given twice"}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Topics, RefusedHelp,
    testing::Values(
        Refusal{"NoTitle", "@help H\n@topic a\nT\n", "2: topic 'a' has no title"},
        Refusal{"LongTitle", "@help H\n@topic a\n@title " + std::string(128, 't') + "\nT\n",
                "2: the title is longer than 127 characters"},
        Refusal{"TwoTitles", kStart + "@title B\nT\n", "4: @title is given twice"},
        Refusal{"NoText", kStart, "2: topic 'a' has no text"},
        Refusal{"NoHelpTitle", "@topic a\n@title A\nT\n", "1: the help file has no title (@help)"},
        Refusal{"LongHelpTitle", "@help " + std::string(51, 'h') + "\n@topic a\n@title A\nT\n",
                "2: the title of the help file is longer than 50 characters"},
        Refusal{"PopupFirst", "@help H\n@popup a\n@title A\nT\n",
                "2: the first topic cannot be a pop-up"},
        Refusal{"BrowsedPopup", kStart + "T\n@popup p\n@title P\n@browse g\nT\n",
                "5: a pop-up topic cannot be in a browse sequence"},
        Refusal{"TextBeforeTopic", "@help H\nText\n@topic a\n@title A\nT\n",
                "2: text before the first @topic"},
        Refusal{"TitleBeforeTopic", "@help H\n@title T\n@topic a\n@title A\nT\n",
                "2: '@title' before the first @topic"}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Marks, RefusedHelp,
    testing::Values(
        Refusal{"UnknownDirective", kStart + "@bold T\nT\n", "4: unknown directive '@bold'"},
        Refusal{"NoValue", kStart + "@number\nT\n", "4: '@number' needs a value"},
        Refusal{"UnknownMark", kStart + "T\nthen {u:text}\n", "5: unknown markup '{u:...}'"},
        Refusal{"UnknownShortMark", kStart + "{nl}\n", "4: unknown markup '{nl}'"},
        Refusal{"NotClosed", kStart + "{b:bold\nand more\n", "4: '{b' is not closed"},
        Refusal{"NotOpened", kStart + "T\nbold}\n", "5: '}' without '{'"},
        Refusal{"StepLeftOut", kStart + "1. one\n3. three\n", "5: step 3 after step 1"},
        Refusal{"StepsNotFromOne", kStart + "2. two\n", "4: step 2 after step 0"},
        Refusal{"NotWindows1252", kStart + "T\n\xE4\xB8\xAD\n",
                "5: character U+4E2D is not in Windows-1252"},
        Refusal{"ControlCharacter", kStart + "T\nT\x01\n",
                "5: character U+0001 is not in Windows-1252"},
        Refusal{"ZeroByte", kStart + std::string("T\nT\0T\n", 6),
                "5: character U+0000 is not in Windows-1252"},
        Refusal{"NotUtf8", kStart + "T\n\xE9t\xE9\n", "5: the line is not UTF-8 text"},
        Refusal{"CutUtf8", kStart + "T\n\xC3", "5: the line is not UTF-8 text"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(RefusedHelpFile, TellsAllThatIsWrongAtOnce) {
    EXPECT_THAT(Compile(kStart + "{jump:x|x}\n@number 1\n@topic b\n@number 1\nT\n").errors,
                ElementsAre("test.txt:6: topic 'b' has no title",
                            "test.txt:7: number 1 is already that of topic 'a' (test.txt:5)",
                            "test.txt:4: there is no topic 'x' to link to"));
}

TEST(RefusedHelpFile, EmptySourceHasNoTopic) {
    EXPECT_THAT(Compile("").errors, ElementsAre(":0: there is no topic"));
}

}  // namespace
}  // namespace vistrel::help_test
