// Builds a tree from its leaves upward, one level of pages after the other.
#include "help/compiler/b_plus_tree.h"

#include "help/compiler/bytes.h"

namespace vistrel::help {
namespace {

constexpr std::size_t kLeafHeader = 8;
constexpr std::size_t kIndexHeader = 6;
constexpr unsigned kNoPage = 0xFFFF;

struct Page {
    std::string firstKey;  // the first key of the leftmost leaf below
    std::string entries;
    unsigned entryCount = 0;
    unsigned firstChild = 0;  // of an index page
};

std::vector<Page> MakeLeaves(std::size_t room, const std::vector<TreeEntry>& entries,
                             std::vector<std::uint32_t>& firstEntryOfLeaf) {
    std::vector<Page> leaves(1);
    firstEntryOfLeaf.assign(1, 0);
    std::uint32_t number = 0;
    for (const TreeEntry& entry : entries) {
        if (leaves.back().entries.size() + entry.key.size() + entry.value.size() > room) {
            leaves.emplace_back();
            firstEntryOfLeaf.push_back(number);
        }
        Page& leaf = leaves.back();
        if (leaf.entryCount++ == 0) leaf.firstKey = entry.key;
        leaf.entries += entry.key + entry.value;
        ++number;
    }
    return leaves;
}

// The index pages over `children`, which are numbered from `firstNumber` on.
std::vector<Page> MakeIndex(std::size_t room, const std::vector<Page>& children,
                            unsigned firstNumber) {
    std::vector<Page> pages;
    unsigned number = firstNumber;
    for (const Page& child : children) {
        if (pages.empty() || pages.back().entries.size() + child.firstKey.size() + 2 > room) {
            pages.push_back({child.firstKey, "", 0, number});
        } else {
            pages.back().entries += child.firstKey;
            PutU16(pages.back().entries, number);
            ++pages.back().entryCount;
        }
        ++number;
    }
    return pages;
}

void PutPage(std::string& bytes, std::size_t pageSize, std::size_t headerSize, const Page& page,
             std::initializer_list<unsigned> pageNumbers) {
    const std::size_t unused = pageSize - headerSize - page.entries.size();
    PutU16(bytes, static_cast<unsigned>(unused));
    PutU16(bytes, page.entryCount);
    for (unsigned number : pageNumbers) PutU16(bytes, number);
    bytes += page.entries;
    bytes.append(unused, '\0');
}

std::string TreeHeader(const TreeForm& form, unsigned pages, unsigned levels, std::size_t entries) {
    std::string bytes;
    PutU16(bytes, 0x293B);
    PutU16(bytes, form.flags);
    PutU16(bytes, static_cast<unsigned>(form.pageSize));
    PutFixed(bytes, form.structure, 16);
    PutU16(bytes, 0);
    PutU16(bytes, pages - levels);
    PutU16(bytes, pages - 1);  // the root is made last
    PutU16(bytes, kNoPage);
    PutU16(bytes, pages);
    PutU16(bytes, levels);
    PutU32(bytes, static_cast<std::uint32_t>(entries));
    return bytes;
}

}  // namespace

Tree BuildTree(const TreeForm& form, const std::vector<TreeEntry>& entries) {
    Tree tree;
    std::vector<Page> level =
        MakeLeaves(form.pageSize - kLeafHeader, entries, tree.firstEntryOfLeaf);
    const auto leafCount = static_cast<unsigned>(level.size());
    std::string pages;
    for (unsigned i = 0; i < leafCount; ++i)
        PutPage(pages, form.pageSize, kLeafHeader, level[i],
                {i == 0 ? kNoPage : i - 1, i + 1 == leafCount ? kNoPage : i + 1});

    unsigned pageCount = leafCount, levels = 1;
    while (level.size() > 1) {
        level = MakeIndex(form.pageSize - kIndexHeader, level,
                          pageCount - static_cast<unsigned>(level.size()));
        for (const Page& page : level)
            PutPage(pages, form.pageSize, kIndexHeader, page, {page.firstChild});
        pageCount += static_cast<unsigned>(level.size());
        ++levels;
    }
    tree.bytes = TreeHeader(form, pageCount, levels, entries.size()) + pages;
    return tree;
}

}  // namespace vistrel::help
