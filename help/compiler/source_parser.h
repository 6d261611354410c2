// The topic sources, line by line:
//
//   @help TITLE          the title of the help file      (once, before the first topic)
//   @copyright TEXT      the line in the viewer's about box
//   @topic NAME          starts a topic; the first of all is the contents
//   @popup NAME          starts a pop-up topic: its title is not shown
//   @title TEXT          the topic's title, shown as its heading
//   @number N            the context number by which the program asks for the topic
//   @keyword WORDS       an entry of the keyword list (letters, digits, blanks)
//   @browse GROUP        makes the topic the next one of a browse sequence
//   // TEXT              a remark
//   = TEXT               a heading, one line
//   - TEXT               a paragraph with a bullet
//   1. TEXT              a numbered paragraph: 1, or the number before and one more
//   * TEXT               a term, in bold, which the next paragraph explains
//   > TEXT               an indented paragraph: explains a term or continues a list
//   TEXT                 an ordinary paragraph
//
// A paragraph goes on in the lines that follow, to the next empty line or the next mark.
#pragma once

#include <vector>

#include "help/compiler/source.h"

namespace vistrel::help {

/// Parses the files in the order given. What is wrong in a line by itself is added to `errors`;
/// what does not fit together is left to CheckSource.
HelpSource ParseSource(const std::vector<SourceFile>& files, SourceErrors& errors);

}  // namespace vistrel::help
