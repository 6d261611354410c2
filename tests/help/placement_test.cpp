// Texts of more than one block and trees of more than one page. The reader checks every address.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/help/compile.h"

namespace vistrel::help_test {
namespace {

using testing::ElementsAre;

// The longest text of a paragraph that still fits into a block, found by asking the compiler.
std::size_t LongestText(const std::string& before) {
    std::size_t fits = 1, fails = 5000;
    while (fails - fits > 1) {
        const std::size_t middle = (fits + fails) / 2;
        (Compile(before + std::string(middle, 'x')).errors.empty() ? fits : fails) = middle;
    }
    return fits;
}

TEST(HelpPlacement, ParagraphMayFillABlockAndNoMore) {
    const std::string start = "@help H\n@topic a\n@title A\nFirst.\n\n";
    const std::size_t longest = LongestText(start);
    // 4084 bytes less record header (21), sizes (2 + 2), layout (7), commands (5) and the zero
    // bytes of three texts.
    EXPECT_EQ(longest, 4084u - 21 - 4 - 7 - 5 - 3);
    const ReadHelp help = CompileAndRead(start + std::string(longest, 'x') + "\n\nLast.\n");
    ASSERT_EQ(help.topics[0].paragraphs.size(), 3u);
    EXPECT_EQ(help.topics[0].paragraphs[1].text.size(), longest);
    EXPECT_THAT(Compile(start + std::string(longest + 1, 'x')).errors,
                ElementsAre("test.txt:6: the paragraph is too long"));
}

TEST(HelpPlacement, HeaderStaysWithItsFirstParagraph) {
    // The second topic starts at every place near the end of a block.
    for (std::size_t length = 3600; length < 4000; length += 3) {
        const ReadHelp help =
            CompileAndRead("@help H\n@topic a\n@title A\n" + std::string(length, 'x') +
                           "\n@popup b\n@title B\n@number 5\nShort.\n");
        ASSERT_EQ(help.topics.size(), 2u);
        EXPECT_EQ(help.TopicOfNumber(5), &help.topics[1]);
    }
}

// A source of many topics, each with a name, a title, a number, a keyword and links of its own.
std::string ManyTopics(int count) {
    std::string source = "@help Many\n";
    for (int i = 0; i < count; ++i) {
        const std::string n = std::to_string(i), next = std::to_string((i + 1) % count);
        source += "@topic topic_" + n + "\n@title Topic number " + n + "\n@number " + n +
                  "\n@browse all\n@keyword a rather long keyword for topic number " + n +
                  "\nThis is topic " + n + ".\n\nOn to {jump:topic_" + next + "|the next}.\n";
    }
    return source;
}

TEST(HelpPlacement, ThousandsOfTopicsAreAllFound) {
    constexpr int kCount = 4000;
    const ReadHelp help = CompileAndRead(ManyTopics(kCount));
    ASSERT_EQ(help.topics.size(), static_cast<std::size_t>(kCount));
    EXPECT_EQ(help.contexts.size(), help.topics.size());
    EXPECT_EQ(help.keywords.size(), help.topics.size());
    for (std::uint32_t i = 0; i < kCount; ++i) {
        const ReadTopic& topic = help.topics[i];
        const ReadTopic& next = help.topics[(i + 1) % kCount];
        ASSERT_EQ(help.numbers.at(i), topic.offset);
        ASSERT_EQ(topic.paragraphs.at(0).text, "This is topic " + std::to_string(i) + ".");
        ASSERT_EQ(help.contexts.at(topic.paragraphs.at(1).links.at(0).hash), next.offset);
        ASSERT_EQ(topic.browseForward, i + 1 < kCount ? next.offset : kNowhere);
    }
    EXPECT_EQ(help.treeLevels.at("|CONTEXT"), 2u);
    EXPECT_EQ(help.treeLevels.at("|TTLBTREE"), 2u);
    EXPECT_EQ(help.treeLevels.at("|KWBTREE"), 3u);
}

TEST(HelpPlacement, TreesGrowByPagesWithoutLosingEntries) {
    // 255 entries of 8 bytes fill a page of |CONTEXT.
    for (int count : {1, 254, 255, 256, 510, 511}) {
        const ReadHelp help = CompileAndRead(ManyTopics(count));
        EXPECT_EQ(help.contexts.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(help.treeLevels.at("|CONTEXT"), count <= 255 ? 1u : 2u) << count;
    }
}

}  // namespace
}  // namespace vistrel::help_test
