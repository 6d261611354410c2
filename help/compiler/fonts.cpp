// The fonts of the help text.
#include "help/compiler/fonts.h"

#include <array>

#include "help/compiler/bytes.h"

namespace vistrel::help {
namespace {

// Arial is on every Windows since 3.1.
constexpr std::string_view kFace = "Arial";
constexpr unsigned kFaceWidth = 32;
constexpr unsigned kSwissFamily = 3;
constexpr unsigned kBold = 1, kItalic = 2;

// Sizes are in half points. Titles, headings and terms are bold throughout.
struct Font {
    unsigned attributes;
    unsigned halfPoints;
};

constexpr std::array<Font, 8> kFonts = {{
    {0, 18},
    {kBold, 18},
    {kItalic, 18},
    {kBold | kItalic, 18},  // text: position = attributes
    {kBold, 26},
    {kBold | kItalic, 26},  // title
    {kBold, 21},
    {kBold | kItalic, 21},  // heading
}};

}  // namespace

unsigned FontOf(Paragraph::Style style, bool bold, bool italic) {
    if (style == Paragraph::Style::Title) return italic ? 5 : 4;
    if (style == Paragraph::Style::Heading) return italic ? 7 : 6;
    if (style == Paragraph::Style::Term) bold = true;
    return (bold ? kBold : 0) | (italic ? kItalic : 0);
}

std::string FontFile() {
    std::string file;
    PutU16(file, 1);
    PutU16(file, kFonts.size());
    PutU16(file, 8);
    PutU16(file, 8 + kFaceWidth);
    PutFixed(file, kFace, kFaceWidth);
    for (const Font& font : kFonts) {
        PutU8(file, font.attributes);
        PutU8(file, font.halfPoints);
        PutU8(file, kSwissFamily);
        PutU16(file, 0);
        // 01 01 00 asks for the user's own window colours, for the text and for what is behind it.
        for (int i = 0; i < 2; ++i) PutFixed(file, std::string_view("\1\1\0", 3), 3);
    }
    return file;
}

}  // namespace vistrel::help
