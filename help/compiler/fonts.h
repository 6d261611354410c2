// The fonts of the help text and the internal file |FONT.
#pragma once

#include <string>

#include "help/compiler/source.h"

namespace vistrel::help {

/// The position in |FONT of the font for text of a paragraph of this style.
unsigned FontOf(Paragraph::Style style, bool bold, bool italic);

/// The content of |FONT: every font that FontOf can name.
std::string FontFile();

}  // namespace vistrel::help
