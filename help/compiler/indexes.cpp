// The internal files by which the viewer finds topics. The viewer searches them, so the order of
// the entries matters and differs from file to file.
#include "help/compiler/indexes.h"

#include <map>

#include "help/compiler/b_plus_tree.h"
#include "help/compiler/bytes.h"
#include "help/compiler/context_name.h"

namespace vistrel::help {
namespace {

constexpr std::size_t kPageSize = 2048;
constexpr unsigned kFlags = 0x0002;

std::string U32(std::uint32_t value) {
    std::string bytes;
    PutU32(bytes, value);
    return bytes;
}

std::string Text(std::string_view text) {
    std::string bytes;
    PutText(bytes, text);
    return bytes;
}

// The order of keywords: without regard to case. Keywords have only letters, digits and blanks.
std::string Folded(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

}  // namespace

std::string ContextFile(const HelpSource& help, const std::vector<std::uint32_t>& offsets) {
    // Sorted as signed numbers.
    std::map<std::int32_t, std::uint32_t> sorted;
    for (std::size_t i = 0; i < help.topics.size(); ++i)
        sorted.emplace(static_cast<std::int32_t>(ContextHash(help.topics[i].name)), offsets[i]);
    std::vector<TreeEntry> entries;
    for (const auto& [hash, offset] : sorted)
        entries.push_back({U32(static_cast<std::uint32_t>(hash)), U32(offset)});
    return BuildTree({kFlags, kPageSize, "L4"}, entries).bytes;
}

std::string NumberFile(const HelpSource& help, const std::vector<std::uint32_t>& offsets) {
    std::map<unsigned long, std::uint32_t> sorted;
    for (std::size_t i = 0; i < help.topics.size(); ++i)
        if (help.topics[i].number) sorted.emplace(*help.topics[i].number, offsets[i]);
    std::string file;
    PutU16(file, static_cast<unsigned>(sorted.size()));
    for (const auto& [number, offset] : sorted) {
        PutU32(file, static_cast<std::uint32_t>(number));
        PutU32(file, offset);
    }
    return file;
}

std::string TitleFile(const HelpSource& help, const std::vector<std::uint32_t>& offsets) {
    // Topics lie in the file in source order: their offsets ascend.
    std::vector<TreeEntry> entries;
    for (std::size_t i = 0; i < help.topics.size(); ++i)
        entries.push_back({U32(offsets[i]), Text(help.topics[i].title)});
    return BuildTree({kFlags, kPageSize, "Lz"}, entries).bytes;
}

KeywordFiles MakeKeywordFiles(const HelpSource& help, const std::vector<std::uint32_t>& offsets) {
    std::map<std::string, std::pair<std::string, std::uint32_t>> sorted;
    for (std::size_t i = 0; i < help.topics.size(); ++i)
        for (const Keyword& keyword : help.topics[i].keywords)
            sorted.emplace(Folded(keyword.text), std::pair(keyword.text, offsets[i]));

    KeywordFiles files;
    std::vector<TreeEntry> entries;
    for (const auto& [folded, keyword] : sorted) {
        std::string value;
        PutU16(value, 1);  // leads to one topic
        PutU32(value, static_cast<std::uint32_t>(files.data.size()));
        entries.push_back({Text(keyword.first), value});
        PutU32(files.data, keyword.second);
    }
    const Tree tree = BuildTree({kFlags, kPageSize, "F24"}, entries);
    files.tree = tree.bytes;
    PutU16(files.map, static_cast<unsigned>(tree.firstEntryOfLeaf.size()));
    unsigned page = 0;
    for (std::uint32_t firstEntry : tree.firstEntryOfLeaf) {
        PutU32(files.map, firstEntry);
        PutU16(files.map, page++);
    }
    return files;
}

}  // namespace vistrel::help
