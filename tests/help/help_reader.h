// Reads a whole help file, sharing nothing with the compiler: the judge of what it writes.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/help/topic_reader.h"

namespace vistrel::help_test {

struct ReadFont {
    std::string face;
    unsigned attributes = 0;  ///< 1 bold, 2 italic
    unsigned halfPoints = 0;
};

struct ReadPicture {
    unsigned bits = 0;
    std::uint32_t width = 0, height = 0;
    std::string palette, rows;
};

struct ReadHelp {
    std::string title, copyright, caption;
    std::uint32_t contents = kNowhere;
    std::vector<std::string> macros;
    std::vector<ReadTopic> topics;
    std::map<std::uint32_t, std::uint32_t> contexts;  ///< hash of a topic's name to its offset
    std::map<std::uint32_t, std::uint32_t> numbers;   ///< context number to topic offset
    std::vector<std::pair<std::string, std::uint32_t>> keywords;  ///< in the order of the list
    std::vector<ReadFont> fonts;
    std::vector<ReadPicture> pictures;
    std::map<std::string, unsigned> treeLevels;  ///< by the name of the internal file

    /// The topic at an offset; null if none starts there.
    const ReadTopic* TopicAt(std::uint32_t offset) const;
    const ReadTopic* TopicOfNumber(std::uint32_t number) const;
    const ReadTopic* TopicOfLink(const ReadLink& link) const;
    const ReadTopic* TopicTitled(const std::string& title) const;
};

/// Throws BadHelpFile at the first thing that is not as it must be.
ReadHelp ReadHelpFile(const std::string& file);

}  // namespace vistrel::help_test
