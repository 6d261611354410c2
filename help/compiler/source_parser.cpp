// Parses topic sources line by line.
#include "help/compiler/source_parser.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "help/compiler/inline_markup.h"
#include "help/compiler/windows_1252.h"

namespace vistrel::help {
namespace {

std::string_view Trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

std::optional<unsigned long> ParseNumber(std::string_view text) {
    unsigned long number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number > 0xFFFFFFFEul) return std::nullopt;
    return number;
}

class SourceParser {
 public:
    explicit SourceParser(SourceErrors& errors) : errors_(errors) {}

    void Parse(const SourceFile& file) {
        place_ = {file.name, 0};
        std::string_view rest = file.text;
        while (!rest.empty()) {
            const std::size_t length = std::min(rest.find('\n'), rest.size());
            std::string_view line = rest.substr(0, length);
            rest.remove_prefix(std::min(length + 1, rest.size()));
            if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
            ++place_.line;
            std::string text, problem;
            if (ToWindows1252(line, text, problem))
                ParseLine(Trim(text));
            else
                Refuse(problem);
        }
        EndParagraph();
    }

    HelpSource Result() { return std::move(help_); }

 private:
    void Refuse(const std::string& message) { errors_.push_back({place_, message}); }

    void ParseLine(std::string_view line) {
        if (line.starts_with("//")) return;
        if (line.empty()) return EndParagraph();
        if (line.front() == '@') {
            EndParagraph();
            return ParseDirective(line.substr(1));
        }
        if (!StartsListOrHeading(line)) ContinueParagraph(line);
    }

    // ------------------------------------------------------------ paragraphs

    bool StartsListOrHeading(std::string_view line) {
        if (line.starts_with("= ")) {
            StartParagraph(Paragraph::Style::Heading, line.substr(2));
            EndParagraph();
        } else if (line.starts_with("- "))
            StartParagraph(Paragraph::Style::Bullet, line.substr(2));
        else if (line.starts_with("* "))
            StartParagraph(Paragraph::Style::Term, line.substr(2));
        else if (line.starts_with("> "))
            StartParagraph(Paragraph::Style::Indented, line.substr(2));
        else
            return StartsNumbered(line);
        return true;
    }

    bool StartsNumbered(std::string_view line) {
        const std::size_t dot = line.find(". ");
        if (dot == std::string_view::npos || dot > 2) return false;
        const std::optional<unsigned long> number = ParseNumber(line.substr(0, dot));
        if (!number) return false;
        StartParagraph(Paragraph::Style::Numbered, line.substr(dot + 2));
        paragraph_.number = static_cast<int>(*number);
        if (paragraph_.number != 1 && paragraph_.number != lastNumber_ + 1)
            Refuse("step " + std::to_string(paragraph_.number) + " after step " +
                   std::to_string(lastNumber_));
        lastNumber_ = paragraph_.number;
        return true;
    }

    void StartParagraph(Paragraph::Style style, std::string_view text) {
        EndParagraph();
        paragraph_ = {style, 0, {}, place_};
        paragraphText_ = Trim(text);
    }

    void ContinueParagraph(std::string_view line) {
        if (paragraphText_.empty()) return StartParagraph(Paragraph::Style::Body, line);
        paragraphText_.push_back('\n');
        paragraphText_.append(line);
    }

    void EndParagraph() {
        if (paragraphText_.empty()) return;
        paragraph_.pieces = ParseInlineMarkup(paragraphText_, paragraph_.place, errors_);
        if (help_.topics.empty())
            errors_.push_back({paragraph_.place, "text before the first @topic"});
        else
            help_.topics.back().paragraphs.push_back(std::move(paragraph_));
        paragraphText_.clear();
    }

    // ------------------------------------------------------------ directives

    void ParseDirective(std::string_view line) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string_view name = line.substr(0, blank);
        const std::string value(Trim(line.substr(blank)));
        if (value.empty()) return Refuse("'@" + std::string(name) + "' needs a value");
        if (name == "help")
            SetOnce(help_.title, value, "@help");
        else if (name == "copyright")
            SetOnce(help_.copyright, value, "@copyright");
        else if (name == "topic" || name == "popup")
            StartTopic(value, name == "popup");
        else
            ParseTopicDirective(name, value);
    }

    void ParseTopicDirective(std::string_view name, const std::string& value) {
        if (help_.topics.empty())
            return Refuse("'@" + std::string(name) + "' before the first @topic");
        Topic& topic = help_.topics.back();
        if (name == "title")
            SetOnce(topic.title, value, "@title");
        else if (name == "browse")
            SetOnce(topic.browseGroup, value, "@browse");
        else if (name == "keyword")
            topic.keywords.push_back({value, place_});
        else if (name == "number")
            SetNumber(topic, value);
        else
            Refuse("unknown directive '@" + std::string(name) + "'");
    }

    void StartTopic(const std::string& name, bool popup) {
        help_.topics.emplace_back();
        help_.topics.back().name = name;
        help_.topics.back().popup = popup;
        help_.topics.back().place = place_;
        lastNumber_ = 0;
    }

    void SetOnce(std::string& field, const std::string& value, const char* directive) {
        if (!field.empty()) return Refuse(std::string(directive) + " is given twice");
        field = value;
    }

    void SetNumber(Topic& topic, const std::string& value) {
        if (topic.number) return Refuse("@number is given twice");
        topic.number = ParseNumber(value);
        topic.numberPlace = place_;
        if (!topic.number) Refuse("'" + value + "' is not a context number");
    }

    HelpSource help_;
    SourceErrors& errors_;
    SourcePlace place_;
    Paragraph paragraph_;
    std::string paragraphText_;  // empty: no paragraph is open
    int lastNumber_ = 0;
};

}  // namespace

HelpSource ParseSource(const std::vector<SourceFile>& files, SourceErrors& errors) {
    SourceParser parser(errors);
    for (const SourceFile& file : files) parser.Parse(file);
    return parser.Result();
}

}  // namespace vistrel::help
