// What each piece of markup becomes in the help file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/help/compile.h"

namespace vistrel::help_test {
namespace {

using testing::ElementsAre;

const std::string kStart = "@help A Title\n@topic start\n@title Start\n";

// The scrolling paragraphs of the only topic of a source.
std::vector<ReadParagraph> Paragraphs(const std::string& text) {
    return CompileAndRead(kStart + text).topics.at(0).paragraphs;
}

TEST(HelpMarkup, TitlesOfFileAndTopicAreShown) {
    const ReadHelp help = CompileAndRead(kStart + "Text.\n");
    EXPECT_EQ(help.title, "A Title");
    EXPECT_EQ(help.caption, "A Title");
    ASSERT_EQ(help.topics.at(0).band.size(), 1u);
    EXPECT_EQ(help.topics[0].band[0].text, "Start");
    const ReadFont& font = help.fonts.at(help.topics[0].band[0].fonts.at(0));
    EXPECT_EQ(font.attributes, 1u);
    EXPECT_GT(font.halfPoints, help.fonts.at(0).halfPoints);
}

TEST(HelpMarkup, LinesOfAParagraphAreJoined) {
    const auto paragraphs = Paragraphs("One\ntwo\r\n  three.\n\n\nFour.");
    ASSERT_EQ(paragraphs.size(), 2u);
    EXPECT_EQ(paragraphs[0].text, "One two three.");
    EXPECT_EQ(paragraphs[1].text, "Four.");
}

TEST(HelpMarkup, RemarksAreLeftOut) {
    EXPECT_EQ(Paragraphs("One\n// not this\ntwo.").at(0).text, "One two.");
}

TEST(HelpMarkup, HeadingIsOneLineBoldAndLargerThanText) {
    const ReadHelp help = CompileAndRead(kStart + "= Head\nText.\n");
    const auto& paragraphs = help.topics[0].paragraphs;
    ASSERT_EQ(paragraphs.size(), 2u);
    EXPECT_EQ(paragraphs[0].text, "Head");
    EXPECT_EQ(paragraphs[1].text, "Text.");
    const ReadFont& font = help.fonts.at(paragraphs[0].fonts.at(0));
    EXPECT_EQ(font.attributes, 1u);
    EXPECT_GT(font.halfPoints, help.fonts.at(0).halfPoints);
}

TEST(HelpMarkup, TermIsBoldAndCloseToItsExplanation) {
    const ReadHelp help = CompileAndRead(kStart + "* Term\n> What it\nmeans.\n");
    const auto& paragraphs = help.topics[0].paragraphs;
    ASSERT_EQ(paragraphs.size(), 2u);
    EXPECT_EQ(paragraphs[0].text, "Term");
    EXPECT_EQ(help.fonts.at(paragraphs[0].fonts.at(0)).attributes, 1u);
    EXPECT_EQ(paragraphs[1].text, "What it means.");
    EXPECT_GT(paragraphs[1].leftIndent, 0);
    EXPECT_LT(paragraphs[0].spaceBelow, paragraphs[1].spaceBelow);
}

TEST(HelpMarkup, BulletsHang) {
    const auto paragraphs = Paragraphs("- one\n- two\n  goes on\n");
    ASSERT_EQ(paragraphs.size(), 2u);
    EXPECT_EQ(paragraphs[0].text, "\x95\tone");
    EXPECT_EQ(paragraphs[1].text, "\x95\ttwo goes on");
    EXPECT_LT(paragraphs[0].firstIndent, 0);
    EXPECT_THAT(paragraphs[0].tabs, ElementsAre(static_cast<unsigned>(paragraphs[0].leftIndent)));
}

TEST(HelpMarkup, StepsKeepTheirNumbersAcrossOtherParagraphs) {
    const auto paragraphs = Paragraphs("1. one\n\n> more\n\n2. two\n1. again\n");
    ASSERT_EQ(paragraphs.size(), 4u);
    EXPECT_EQ(paragraphs[0].text, "1.\tone");
    EXPECT_EQ(paragraphs[1].text, "more");
    EXPECT_GT(paragraphs[1].leftIndent, 0);
    EXPECT_EQ(paragraphs[2].text, "2.\ttwo");
    EXPECT_EQ(paragraphs[3].text, "1.\tagain");
}

TEST(HelpMarkup, ANumberInATextIsNoStep) {
    EXPECT_EQ(Paragraphs("1998. A year.").at(0).text, "1998. A year.");
    EXPECT_EQ(Paragraphs("3.5 is a number.").at(0).text, "3.5 is a number.");
}

TEST(HelpMarkup, BoldAndItalicChangeTheFont) {
    const ReadHelp help = CompileAndRead(kStart + "a {b:b {i:c} d} e {i:f}\n");
    const ReadParagraph& paragraph = help.topics[0].paragraphs[0];
    EXPECT_EQ(paragraph.text, "a b c d e f");
    std::vector<unsigned> attributes;
    for (unsigned font : paragraph.fonts) attributes.push_back(help.fonts.at(font).attributes);
    EXPECT_THAT(attributes, ElementsAre(0, 1, 3, 1, 0, 2));
}

TEST(HelpMarkup, LineBreakStaysInItsParagraph) {
    EXPECT_EQ(Paragraphs("one{br}\ntwo").at(0).text, "one\ntwo");
}

TEST(HelpMarkup, LinksLeadToTheirTopics) {
    const ReadHelp help = CompileAndRead(kStart +
                                         "See {jump:other|the\nother one} or {popup:word|a word}.\n"
                                         "@topic other\n@title Other\nBack to {jump:START|start}.\n"
                                         "@popup word\n@title Word\nMeaning.\n");
    const ReadParagraph& paragraph = help.topics[0].paragraphs[0];
    EXPECT_EQ(paragraph.text, "See the other one or a word.");
    ASSERT_EQ(paragraph.links.size(), 2u);
    EXPECT_EQ(paragraph.links[0].text, "the other one");
    EXPECT_FALSE(paragraph.links[0].popup);
    EXPECT_EQ(help.TopicOfLink(paragraph.links[0])->title, "Other");
    EXPECT_TRUE(paragraph.links[1].popup);
    EXPECT_EQ(help.TopicOfLink(paragraph.links[1])->title, "Word");
    const ReadLink& back = help.topics[1].paragraphs[0].links.at(0);
    EXPECT_EQ(help.TopicOfLink(back)->title, "Start") << "names are the same in either case";
}

TEST(HelpMarkup, PopupHasNoHeadingBand) {
    const ReadHelp help = CompileAndRead(kStart + "Text.\n@popup p\n@title P\n@number 7\nWhat.\n");
    EXPECT_TRUE(help.topics[1].band.empty());
    EXPECT_EQ(help.topics[1].paragraphs.at(0).text, "What.");
    EXPECT_EQ(help.TopicOfNumber(7), &help.topics[1]);
}

TEST(HelpMarkup, FirstTopicIsTheContents) {
    const ReadHelp help = CompileAndRead(kStart + "Text.\n@topic b\n@title B\nText.\n");
    EXPECT_EQ(help.TopicAt(help.contents)->title, "Start");
}

TEST(HelpMarkup, LettersBeyondAsciiBecomeWindows1252) {
    EXPECT_EQ(
        Paragraphs("caf\xC3\xA9 \xE2\x80\x93 \xE2\x82\xAC \xE2\x80\x9Cx\xE2\x80\x9D").at(0).text,
        "caf\xE9 \x96 \x80 \x93x\x94");
}

TEST(HelpMarkup, KeywordsAreSortedWithoutRegardToCase) {
    const ReadHelp help =
        CompileAndRead(kStart +
                       "@keyword zebra\n@keyword Apple\n@keyword Apple 2\nText.\n"
                       "@topic b\n@title B\n@keyword apple pie\n@keyword Yak\nT.\n");
    std::vector<std::string> keywords;
    for (const auto& [keyword, offset] : help.keywords) keywords.push_back(keyword);
    EXPECT_THAT(keywords, ElementsAre("Apple", "Apple 2", "apple pie", "Yak", "zebra"));
    EXPECT_EQ(help.TopicAt(help.keywords[2].second)->title, "B");
    EXPECT_EQ(help.TopicAt(help.keywords[4].second)->title, "Start");
}

TEST(HelpMarkup, BrowseSequencesKeepToTheirGroups) {
    const ReadHelp help =
        CompileAndRead(kStart +
                       "@browse one\nText.\n@topic b\n@title B\n@browse two\nT.\n"
                       "@topic c\n@title C\n@browse one\nT.\n@topic d\n@title D\nT.\n");
    const auto& topics = help.topics;
    EXPECT_EQ(topics[0].browseBack, kNowhere);
    EXPECT_EQ(topics[0].browseForward, topics[2].offset);
    EXPECT_EQ(topics[2].browseBack, topics[0].offset);
    EXPECT_EQ(topics[2].browseForward, kNowhere);
    EXPECT_EQ(topics[1].browseForward, kNowhere);
    EXPECT_EQ(topics[3].browseBack, kNowhere);
    EXPECT_THAT(help.macros, ElementsAre("BrowseButtons()"));
}

TEST(HelpMarkup, NoBrowseButtonsWithoutASequence) {
    EXPECT_TRUE(CompileAndRead(kStart + "Text.\n").macros.empty());
}

TEST(HelpMarkup, SameSourceGivesTheSameBytes) {
    const std::string source = kStart + "@keyword k\nText {b:bold}.\n";
    EXPECT_EQ(Compile(source).file, Compile(source).file);
}

}  // namespace
}  // namespace vistrel::help_test
