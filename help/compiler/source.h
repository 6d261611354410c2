// What the parser makes of the topic sources: the help file as its author wrote it, before any byte
// of the output is known. All text is Windows-1252.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vistrel::help {

/// A line of a source file, counted from 1.
struct SourcePlace {
    std::string file;
    int line = 0;
};

/// One reason why the sources are refused.
struct SourceError {
    SourcePlace place;
    std::string message;
};

using SourceErrors = std::vector<SourceError>;

/// One source file as it lies on disk (UTF-8).
struct SourceFile {
    std::string name;
    std::string text;
};

/// A part of a paragraph: text in one style, or something that happens between two texts.
struct Piece {
    enum class Kind { Text, LineBreak, Picture, JumpStart, PopupStart, LinkEnd };
    Kind kind = Kind::Text;
    std::string text;  ///< the text, the picture's file name or the name of the topic linked to
    bool bold = false;
    bool italic = false;
    SourcePlace place;
};

struct Paragraph {
    enum class Style { Title, Heading, Body, Term, Bullet, Numbered, Indented };
    Style style = Style::Body;
    int number = 0;  ///< of a numbered paragraph, from 1
    std::vector<Piece> pieces;
    SourcePlace place;
};

struct Keyword {
    std::string text;
    SourcePlace place;
};

struct Topic {
    std::string name;  ///< by which links find it
    bool popup = false;
    std::string title;
    std::optional<unsigned long> number;  ///< by which the program finds it
    SourcePlace numberPlace;
    std::vector<Keyword> keywords;
    std::string browseGroup;  ///< empty: not in any browse sequence
    std::vector<Paragraph> paragraphs;
    SourcePlace place;
};

/// The whole help file. The first topic is the contents.
struct HelpSource {
    std::string title;
    std::string copyright;
    std::vector<Topic> topics;
};

}  // namespace vistrel::help
