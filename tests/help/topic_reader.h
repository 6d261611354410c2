// Reads the topics of a help file.
#pragma once

#include <string>
#include <vector>

#include "tests/help/byte_reader.h"

namespace vistrel::help_test {

constexpr std::uint32_t kNowhere = 0xFFFFFFFF;

struct ReadLink {
    bool popup = false;
    std::uint32_t hash = 0;
    std::string text;
};

struct ReadParagraph {
    std::string text;  ///< as shown: '\n' for a line break, '\t' for a tab
    std::vector<ReadLink> links;
    std::vector<unsigned> pictures;
    std::vector<unsigned> fonts;  ///< in the order in which they are set
    int spaceAbove = 0, spaceBelow = 0, leftIndent = 0, firstIndent = 0;  ///< half points
    std::vector<unsigned> tabs;
};

struct ReadTopic {
    std::uint32_t offset = 0;  ///< its TOPICOFFSET
    std::string title;
    std::uint32_t browseBack = kNowhere, browseForward = kNowhere;
    std::vector<ReadParagraph> band;  ///< the paragraphs that do not scroll
    std::vector<ReadParagraph> paragraphs;
};

/// Reads |TOPIC. Throws BadHelpFile when a block, record, address or command is wrong.
std::vector<ReadTopic> ReadTopics(std::string_view file);

}  // namespace vistrel::help_test
