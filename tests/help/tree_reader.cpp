// Reads a sorted tree and checks everything by which a viewer finds its way through it.
#include "tests/help/tree_reader.h"

namespace vistrel::help_test {
namespace {

class TreeReader {
 public:
    TreeReader(std::string_view file, const TreeRules& rules) : rules_(rules) {
        ByteReader header(file);
        Demand(header.U16() == 0x293B, "a tree has a wrong magic number");
        Demand(header.U16() == rules.flags, "a tree has wrong flags");
        Demand(header.U16() == rules.pageSize, "a tree has a wrong page size");
        Demand(header.Fixed(16) == rules.structure, "a tree has a wrong structure");
        Demand(header.U16() == 0, "a tree has no zero where there must be one");
        const unsigned splits = header.U16();
        root_ = header.U16();
        Demand(header.S16() == -1, "a tree has no -1 where there must be one");
        pageCount_ = header.U16();
        tree_.levels = header.U16();
        entryCount_ = header.U32();
        Demand(splits == pageCount_ - tree_.levels, "a tree has a wrong number of page splits");
        Demand(header.Left() == pageCount_ * rules.pageSize, "a tree has a wrong number of pages");
        pages_ = header.Take(header.Left());
    }

    ReadTree Read() {
        ReadPage(root_, 1);
        Demand(pagesRead_ == pageCount_, "a tree has pages that are not reached");
        std::size_t count = 0;
        for (const TreeLeaf& leaf : tree_.leaves) count += leaf.entries.size();
        Demand(count == entryCount_, "a tree has a wrong number of entries");
        Demand(lastNext_ == kNone, "the last leaf of a tree has a next one");
        return std::move(tree_);
    }

 private:
    static constexpr unsigned kNone = 0xFFFF;

    // Returns the first key of the leftmost leaf below.
    std::string ReadPage(unsigned number, unsigned level) {
        Demand(number < pageCount_ && ++pagesRead_ <= pageCount_, "a tree has a wrong page number");
        ByteReader page(pages_.substr(number * rules_.pageSize, rules_.pageSize));
        return level == tree_.levels ? ReadLeaf(page, number) : ReadIndex(page, level);
    }

    std::string ReadLeaf(ByteReader& page, unsigned number) {
        const unsigned unused = page.U16(), count = page.U16();
        const unsigned previous = page.U16(), next = page.U16();
        const bool isFirst = tree_.leaves.empty();
        Demand(previous == (isFirst ? kNone : tree_.leaves.back().page), "leaves are not linked");
        Demand(isFirst || lastNext_ == number, "leaves are not linked");
        lastNext_ = next;
        tree_.leaves.push_back({number, {}});
        for (unsigned i = 0; i < count; ++i) {
            const std::string key = rules_.readKey(page);
            Demand(!hasKey_ || rules_.isBefore(lastKey_, key), "the keys of a tree are not sorted");
            hasKey_ = true;
            lastKey_ = key;
            tree_.leaves.back().entries.emplace_back(key, rules_.readValue(page));
        }
        CheckUnused(page, unused);
        return count == 0 ? "" : tree_.leaves.back().entries.front().first;
    }

    std::string ReadIndex(ByteReader& page, unsigned level) {
        const unsigned unused = page.U16(), count = page.U16();
        const std::string first = ReadPage(page.U16(), level + 1);
        for (unsigned i = 0; i < count; ++i) {
            const std::string key = rules_.readKey(page);
            Demand(ReadPage(page.U16(), level + 1) == key, "an index key is not its page's first");
        }
        CheckUnused(page, unused);
        return first;
    }

    static void CheckUnused(ByteReader& page, unsigned unused) {
        Demand(page.Left() == unused, "a page tells a wrong number of unused bytes");
        page.Fixed(page.Left());
    }

    const TreeRules& rules_;
    std::string_view pages_;
    unsigned root_ = 0, pageCount_ = 0, pagesRead_ = 0, lastNext_ = kNone;
    std::size_t entryCount_ = 0;
    bool hasKey_ = false;
    std::string lastKey_;
    ReadTree tree_;
};

}  // namespace

ReadTree ReadTreeFile(std::string_view file, const TreeRules& rules) {
    return TreeReader(file, rules).Read();
}

}  // namespace vistrel::help_test
