// Takes the markup inside a paragraph apart, from left to right.
#include "help/compiler/inline_markup.h"

namespace vistrel::help {
namespace {

class InlineParser {
 public:
    InlineParser(const std::string& text, const SourcePlace& place, SourceErrors& errors)
        : text_(text), place_(place), errors_(errors) {}

    std::vector<Piece> Parse() {
        while (!AtEnd()) {
            ParseContent();
            if (!AtEnd()) {
                Refuse("'}' without '{'");
                Take();
            }
        }
        return std::move(pieces_);
    }

 private:
    bool AtEnd() const { return next_ == text_.size(); }
    char Look() const { return text_[next_]; }

    // A line end counts as a blank.
    char Take() {
        const char c = text_[next_++];
        if (c != '\n') return c;
        ++place_.line;
        return ' ';
    }

    void Refuse(const std::string& message) { errors_.push_back({place_, message}); }

    void AddText(char c) {
        const bool continues = !pieces_.empty() && pieces_.back().kind == Piece::Kind::Text &&
                               pieces_.back().bold == bold_ && pieces_.back().italic == italic_;
        if (!continues) Add(Piece::Kind::Text, "");
        pieces_.back().text.push_back(c);
    }

    void Add(Piece::Kind kind, const std::string& text) {
        pieces_.push_back({kind, text, bold_, italic_, place_});
    }

    // Up to the end of the text or the '}' that closes what the caller has opened.
    void ParseContent() {
        while (!AtEnd()) {
            if (Look() == '}') return;
            const char c = Take();
            if (c == '{')
                ParseMark();
            else
                AddText(c);
        }
    }

    void ParseMark() {
        const SourcePlace opened = place_;
        const std::string name = TakeUpTo(":}");
        const bool hasContent = !AtEnd() && Take() == ':';
        if (name == "b" && hasContent)
            ParseStyled(bold_);
        else if (name == "i" && hasContent)
            ParseStyled(italic_);
        else if (name == "jump" && hasContent)
            ParseLink(Piece::Kind::JumpStart);
        else if (name == "popup" && hasContent)
            ParseLink(Piece::Kind::PopupStart);
        else if (name == "picture" && hasContent)
            Add(Piece::Kind::Picture, TakeUpTo("}"));
        else if (name == "br" && !hasContent)
            return AddLineBreak();
        else
            return RefuseMark(name, hasContent);
        if (AtEnd())
            errors_.push_back({opened, "'{" + name + "' is not closed"});
        else
            Take();
    }

    // The source usually goes on in a new line, too: its blank would indent the text.
    void AddLineBreak() {
        Add(Piece::Kind::LineBreak, "");
        while (!AtEnd() && (Look() == ' ' || Look() == '\n')) Take();
    }

    void RefuseMark(const std::string& name, bool hasContent) {
        Refuse("unknown markup '{" + name + (hasContent ? ":...}'" : "}'"));
        if (!hasContent) return;
        ParseContent();
        if (!AtEnd()) Take();
    }

    void ParseStyled(bool& style) {
        const bool before = style;
        style = true;
        ParseContent();
        style = before;
    }

    void ParseLink(Piece::Kind kind) {
        const std::string target = TakeUpTo("|}");
        if (AtEnd() || Look() == '}') return Refuse("a link needs a text: {jump:topic|text}");
        Take();
        if (inLink_) Refuse("a link inside a link");
        inLink_ = true;
        Add(kind, target);
        ParseContent();
        Add(Piece::Kind::LinkEnd, "");
        inLink_ = false;
    }

    std::string TakeUpTo(const char* ends) {
        std::string taken;
        while (!AtEnd() && std::string_view(ends).find(Look()) == std::string_view::npos)
            taken.push_back(Take());
        return taken;
    }

    const std::string& text_;
    SourcePlace place_;
    SourceErrors& errors_;
    std::size_t next_ = 0;
    bool bold_ = false;
    bool italic_ = false;
    bool inLink_ = false;
    std::vector<Piece> pieces_;
};

}  // namespace

std::vector<Piece> ParseInlineMarkup(const std::string& text, const SourcePlace& place,
                                     SourceErrors& errors) {
    return InlineParser(text, place, errors).Parse();
}

}  // namespace vistrel::help
