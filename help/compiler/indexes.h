// The internal files by which the viewer finds topics: by link, by number, by place, by keyword.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "help/compiler/source.h"

namespace vistrel::help {

/// |CONTEXT: from the hashes of topic names to topics. `offsets` here and below: TOPICOFFSET of
/// each topic, in source order.
std::string ContextFile(const HelpSource& help, const std::vector<std::uint32_t>& offsets);

/// |CTXOMAP: from context numbers to topics.
std::string NumberFile(const HelpSource& help, const std::vector<std::uint32_t>& offsets);

/// |TTLBTREE: from topics to their titles.
std::string TitleFile(const HelpSource& help, const std::vector<std::uint32_t>& offsets);

/// |KWDATA, |KWMAP and |KWBTREE: the keyword list.
struct KeywordFiles {
    std::string data, map, tree;
};

KeywordFiles MakeKeywordFiles(const HelpSource& help, const std::vector<std::uint32_t>& offsets);

}  // namespace vistrel::help
