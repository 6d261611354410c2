// A paragraph as the two byte strings of its text record in |TOPIC.
#pragma once

#include <cstdint>
#include <string>

#include "help/compiler/pictures.h"
#include "help/compiler/source.h"

namespace vistrel::help {

struct ParagraphRecord {
    std::string commands;      ///< LinkData1: sizes, layout, commands
    std::string texts;         ///< LinkData2: a zero-terminated string for each command
    std::uint32_t length = 0;  ///< what the paragraph adds to the addresses of the text after it
};

/// Numbers the pictures it meets in `pictures`.
ParagraphRecord MakeParagraphRecord(const Paragraph& paragraph, Pictures& pictures);

}  // namespace vistrel::help
