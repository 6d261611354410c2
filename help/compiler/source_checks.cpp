// Whether the topics fit together.
#include "help/compiler/source_checks.h"

#include <algorithm>
#include <map>

#include "help/compiler/context_name.h"

namespace vistrel::help {
namespace {

// Limits of the viewer, in bytes.
constexpr std::size_t kLongestTitle = 127;
constexpr std::size_t kLongestKeyword = 255;
constexpr std::size_t kLongestCaption = 50;

std::string At(const SourcePlace& place) {
    return " (" + place.file + ":" + std::to_string(place.line) + ")";
}

class Checker {
 public:
    Checker(const HelpSource& help, SourceErrors& errors) : help_(help), errors_(errors) {}

    void Check() {
        if (help_.topics.empty()) return Refuse({}, "there is no topic");
        CheckHelpTitle();
        for (const Topic& topic : help_.topics) {
            CheckName(topic);
            CheckTexts(topic);
            CheckNumber(topic);
            for (const Keyword& keyword : topic.keywords) CheckKeyword(topic, keyword);
        }
        for (const Topic& topic : help_.topics) CheckLinks(topic);
    }

 private:
    void Refuse(const SourcePlace& place, const std::string& message) {
        errors_.push_back({place, message});
    }

    void CheckHelpTitle() {
        const Topic& contents = help_.topics.front();
        if (help_.title.empty()) Refuse(contents.place, "the help file has no title (@help)");
        if (help_.title.size() > kLongestCaption)
            Refuse(contents.place, "the title of the help file is longer than 50 characters");
        if (contents.popup) Refuse(contents.place, "the first topic cannot be a pop-up");
    }

    void CheckName(const Topic& topic) {
        if (!IsContextName(topic.name))
            return Refuse(topic.place, "'" + topic.name +
                                           "' is no topic name: only letters, digits, '.' and '_'");
        const std::uint32_t hash = ContextHash(topic.name);
        if (hash == 0) return Refuse(topic.place, "'" + topic.name + "' has the hash 0; rename it");
        const auto [found, isNew] = byHash_.emplace(hash, &topic);
        if (!isNew)
            Refuse(topic.place, "topic '" + topic.name + "' has the name or the hash of topic '" +
                                    found->second->name + "'" + At(found->second->place));
    }

    void CheckTexts(const Topic& topic) {
        if (topic.title.empty()) Refuse(topic.place, "topic '" + topic.name + "' has no title");
        if (topic.title.size() > kLongestTitle)
            Refuse(topic.place, "the title is longer than 127 characters");
        if (topic.paragraphs.empty()) Refuse(topic.place, "topic '" + topic.name + "' has no text");
        if (topic.popup && !topic.browseGroup.empty())
            Refuse(topic.place, "a pop-up topic cannot be in a browse sequence");
    }

    void CheckNumber(const Topic& topic) {
        if (!topic.number) return;
        const auto [found, isNew] = byNumber_.emplace(*topic.number, &topic);
        if (!isNew)
            Refuse(topic.numberPlace, "number " + std::to_string(*topic.number) +
                                          " is already that of topic '" + found->second->name +
                                          "'" + At(found->second->numberPlace));
    }

    // The viewers do not agree on how other characters sort, and not every one of them can offer a
    // keyword with more than one topic.
    void CheckKeyword(const Topic& topic, const Keyword& keyword) {
        std::string folded;
        for (char c : keyword.text) {
            const bool isUpper = c >= 'A' && c <= 'Z';
            folded.push_back(isUpper ? static_cast<char>(c - 'A' + 'a') : c);
        }
        const bool safe = std::all_of(folded.begin(), folded.end(), [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == ' ';
        });
        if (!safe)
            Refuse(keyword.place,
                   "a keyword has only letters, digits and blanks: '" + keyword.text + "'");
        if (folded.size() > kLongestKeyword) Refuse(keyword.place, "the keyword is too long");
        const auto [found, isNew] = byKeyword_.emplace(folded, &topic);
        if (!isNew)
            Refuse(keyword.place, "keyword '" + keyword.text + "' already leads to topic '" +
                                      found->second->name + "'" + At(found->second->place));
    }

    void CheckLinks(const Topic& topic) {
        for (const Paragraph& paragraph : topic.paragraphs)
            for (const Piece& piece : paragraph.pieces)
                if (piece.kind == Piece::Kind::JumpStart || piece.kind == Piece::Kind::PopupStart)
                    CheckLink(piece);
    }

    void CheckLink(const Piece& link) {
        const auto target = byHash_.find(ContextHash(link.text));
        if (!IsContextName(link.text) || target == byHash_.end())
            return Refuse(link.place, "there is no topic '" + link.text + "' to link to");
        const bool toPopup = link.kind == Piece::Kind::PopupStart;
        if (target->second->popup != toPopup)
            Refuse(link.place, toPopup ? "'" + link.text + "' is not a pop-up topic; use {jump:"
                                       : "'" + link.text + "' is a pop-up topic; use {popup:");
    }

    const HelpSource& help_;
    SourceErrors& errors_;
    std::map<std::uint32_t, const Topic*> byHash_;
    std::map<unsigned long, const Topic*> byNumber_;
    std::map<std::string, const Topic*> byKeyword_;
};

}  // namespace

void CheckSource(const HelpSource& help, SourceErrors& errors) { Checker(help, errors).Check(); }

}  // namespace vistrel::help
