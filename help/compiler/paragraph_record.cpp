// Turns a paragraph into layout, commands and texts.
#include "help/compiler/paragraph_record.h"

#include "help/compiler/bytes.h"
#include "help/compiler/context_name.h"
#include "help/compiler/fonts.h"

namespace vistrel::help {
namespace {

constexpr unsigned kFontCommand = 0x80, kLineBreak = 0x81, kEndOfParagraph = 0x82, kTab = 0x83,
                   kPicture = 0x86, kEndOfLink = 0x89, kPopupLink = 0xE2, kJumpLink = 0xE3,
                   kEndOfRecord = 0xFF;
constexpr char kBulletCharacter = '\x95';

// In half points; a 0 is not written.
struct Layout {
    int above, below, left, first;
};

Layout LayoutOf(Paragraph::Style style) {
    switch (style) {
        case Paragraph::Style::Title:
            return {6, 10, 0, 0};
        case Paragraph::Style::Heading:
            return {12, 8, 0, 0};
        case Paragraph::Style::Body:
            return {0, 12, 0, 0};
        case Paragraph::Style::Term:
            return {0, 2, 0, 0};
        case Paragraph::Style::Bullet:
            return {0, 8, 30, -20};
        case Paragraph::Style::Numbered:
            return {0, 8, 36, -30};
        case Paragraph::Style::Indented:
            return {0, 10, 36, 0};
    }
    return {};
}

// The fixed start of LinkData1 behind the sizes.
std::string LayoutBytes(const Layout& layout, bool tab) {
    std::string bytes, values;
    unsigned bits = 0;
    const auto put = [&](unsigned bit, int value) {
        if (value == 0) return;
        bits |= bit;
        PutSignedShort(values, value);
    };
    put(0x0002, layout.above);
    put(0x0004, layout.below);
    put(0x0010, layout.left);
    put(0x0040, layout.first);
    if (tab) {
        bits |= 0x0200;
        PutSignedShort(values, 1);
        PutShort(values, static_cast<unsigned>(layout.left));
    }
    PutU8(bytes, 0);
    PutU8(bytes, 0x80);
    PutU16(bytes, 0);
    PutU16(bytes, bits);
    return bytes + values;
}

class RecordMaker {
 public:
    RecordMaker(const Paragraph& paragraph, Pictures& pictures)
        : paragraph_(paragraph), pictures_(pictures) {}

    ParagraphRecord Make() {
        PutLabel();
        for (const Piece& piece : paragraph_.pieces) PutPiece(piece);
        Put(kEndOfParagraph);
        Put(kEndOfRecord);
        ParagraphRecord record;
        const std::string body = LayoutBytes(LayoutOf(paragraph_.style), HasLabel()) + commands_;
        record.length = static_cast<std::uint32_t>(texts_.size()) + pictureCount_;
        PutSignedLong(record.commands, static_cast<std::int32_t>(body.size()));
        PutShort(record.commands, record.length);
        record.commands += body;
        record.texts = texts_;
        return record;
    }

 private:
    bool HasLabel() const {
        return paragraph_.style == Paragraph::Style::Bullet ||
               paragraph_.style == Paragraph::Style::Numbered;
    }

    // The viewer shows one text, then carries out one command: each command ends a text.
    void Put(unsigned command) {
        PutU8(texts_, 0);
        PutU8(commands_, command);
    }

    void PutFont(unsigned font) {
        if (font == font_) return;
        font_ = font;
        Put(kFontCommand);
        PutU16(commands_, font);
    }

    void PutLabel() {
        PutFont(FontOf(paragraph_.style, false, false));
        if (!HasLabel()) return;
        if (paragraph_.style == Paragraph::Style::Bullet)
            texts_.push_back(kBulletCharacter);
        else
            texts_ += std::to_string(paragraph_.number) + ".";
        Put(kTab);
    }

    void PutPiece(const Piece& piece) {
        switch (piece.kind) {
            case Piece::Kind::Text:
                PutFont(FontOf(paragraph_.style, piece.bold, piece.italic));
                texts_ += piece.text;
                break;
            case Piece::Kind::LineBreak:
                Put(kLineBreak);
                break;
            case Piece::Kind::Picture:
                PutPicture(pictures_.NumberOf(piece.text, piece.place));
                break;
            case Piece::Kind::JumpStart:
            case Piece::Kind::PopupStart:
                Put(piece.kind == Piece::Kind::JumpStart ? kJumpLink : kPopupLink);
                PutU32(commands_, ContextHash(piece.text));
                break;
            case Piece::Kind::LinkEnd:
                Put(kEndOfLink);
                break;
        }
    }

    void PutPicture(unsigned number) {
        Put(kPicture);
        PutU8(commands_, 0x22);  // a picture kept in a |bm file
        PutSignedLong(commands_, 4);
        PutShort(commands_, 1);
        PutU16(commands_, 0);
        PutU16(commands_, number);
        ++pictureCount_;
    }

    const Paragraph& paragraph_;
    Pictures& pictures_;
    std::string commands_;
    std::string texts_;
    unsigned font_ = 0xFFFF;
    std::uint32_t pictureCount_ = 0;
};

}  // namespace

ParagraphRecord MakeParagraphRecord(const Paragraph& paragraph, Pictures& pictures) {
    return RecordMaker(paragraph, pictures).Make();
}

}  // namespace vistrel::help
