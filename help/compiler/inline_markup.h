// The markup inside a paragraph:
//
//   {b:bold}  {i:italic}              may be nested
//   {jump:topic|text}                 a link to a topic
//   {popup:topic|text}                a link to a pop-up topic
//   {picture:file.bmp}  {br}          a picture in the line of text, a line break
//
// Braces cannot stand for themselves.
#pragma once

#include <string>
#include <vector>

#include "help/compiler/source.h"

namespace vistrel::help {

/// Takes a paragraph apart. `text` holds its source lines, separated by '\n', which count as
/// blanks; `place` is that of its first line. What cannot be understood is added to `errors`.
std::vector<Piece> ParseInlineMarkup(const std::string& text, const SourcePlace& place,
                                     SourceErrors& errors);

}  // namespace vistrel::help
