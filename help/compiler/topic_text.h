// The text of all topics: the internal file |TOPIC, and where each topic lies in it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "help/compiler/pictures.h"
#include "help/compiler/source.h"

namespace vistrel::help {

struct TopicText {
    std::string file;                         ///< the content of |TOPIC
    std::vector<std::uint32_t> topicOffsets;  ///< TOPICOFFSET of each topic, in source order
};

/// Lays the topics out. A paragraph that does not fit into one block is added to `errors`.
TopicText MakeTopicText(const HelpSource& help, Pictures& pictures, SourceErrors& errors);

}  // namespace vistrel::help
