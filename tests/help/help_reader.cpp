// Reads a whole help file: directory, internal files, and whether they agree.
#include "tests/help/help_reader.h"

#include <algorithm>

#include "tests/help/tree_reader.h"

namespace vistrel::help_test {
namespace {

std::string TextKey(ByteReader& bytes) { return bytes.Text(); }
std::string FourBytes(ByteReader& bytes) { return std::string(bytes.Take(4)); }
std::uint32_t Number(const std::string& bytes) { return ByteReader(bytes).U32(); }

bool BeforeAsBytes(const std::string& a, const std::string& b) { return a < b; }
bool BeforeAsSigned(const std::string& a, const std::string& b) {
    return static_cast<std::int32_t>(Number(a)) < static_cast<std::int32_t>(Number(b));
}
bool BeforeAsUnsigned(const std::string& a, const std::string& b) { return Number(a) < Number(b); }
bool BeforeWithoutCase(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [](unsigned char x, unsigned char y) { return std::tolower(x) < std::tolower(y); });
}

class HelpReader {
 public:
    explicit HelpReader(const std::string& file) : file_(file) {}

    ReadHelp Read() {
        ReadDirectory();
        ReadSystem(File("|SYSTEM"));
        help_.topics = ReadTopics(File("|TOPIC"));
        ReadFonts(File("|FONT"));
        ReadNumbers(File("|CTXOMAP"));
        ReadContexts();
        ReadTitles();
        ReadKeywords();
        while (files_.contains("|bm" + std::to_string(help_.pictures.size())))
            ReadOnePicture(File("|bm" + std::to_string(help_.pictures.size())));
        Demand(files_.size() == taken_, "there are files that nobody reads");
        CheckReferences();
        return std::move(help_);
    }

 private:
    // ------------------------------------------------------------ the files

    void ReadDirectory() {
        ByteReader header(file_);
        Demand(header.U32() == 0x00035F3F, "this is no help file");
        const std::uint32_t directory = header.U32();
        Demand(header.U32() == kNowhere, "there is a free block");
        Demand(header.U32() == file_.size(), "the file tells a wrong size");
        const TreeRules rules = {0x0402, 1024, "z4", TextKey, FourBytes, BeforeAsBytes};
        std::map<std::uint32_t, std::size_t> used = {{0, 16}};
        for (const TreeLeaf& leaf : Tree("directory", Content(directory, 4, used), rules).leaves)
            for (const auto& [name, offset] : leaf.entries)
                files_.emplace(name, Content(Number(offset), 0, used));
        std::size_t end = 0;
        for (const auto& [start, size] : used) {
            Demand(start == end, "there is a gap or an overlap between the files");
            end = start + size;
        }
        Demand(end == file_.size(), "something follows the last file");
        const std::string_view topics = files_["|TOPIC"];
        const auto behind = file_.data() + file_.size() - (topics.data() + topics.size());
        Demand(behind >= 4096, "too little follows |TOPIC for viewers that read whole blocks");
    }

    std::string_view Content(std::uint32_t offset, unsigned flags,
                             std::map<std::uint32_t, std::size_t>& used) {
        Demand(offset < file_.size(), "a file lies outside");
        ByteReader bytes(std::string_view(file_).substr(offset));
        const std::uint32_t reserved = bytes.U32(), size = bytes.U32();
        Demand(reserved == size + 9, "a file reserves a wrong size");
        Demand(bytes.U8() == flags, "a file has wrong flags");
        used[offset] = reserved;
        return bytes.Take(size);
    }

    std::string_view File(const std::string& name) {
        Demand(files_.contains(name), "there is no " + name);
        ++taken_;
        return files_[name];
    }

    ReadTree Tree(const std::string& name, std::string_view file, const TreeRules& rules) {
        ReadTree tree = ReadTreeFile(file, rules);
        help_.treeLevels[name] = tree.levels;
        return tree;
    }

    // ------------------------------------------------------------ the internal files

    void ReadSystem(std::string_view file) {
        ByteReader bytes(file);
        Demand(bytes.U16() == 0x036C && bytes.U16() == 33 && bytes.U16() == 1, "a wrong version");
        Demand(bytes.U32() == 0, "the file has a date: it cannot be made again");
        Demand(bytes.U16() == 0, "the file is compressed");
        while (bytes.Left() > 0) {
            const unsigned type = bytes.U16(), size = bytes.U16();
            ReadSystemRecord(type, ByteReader(bytes.Take(size)));
        }
        Demand(!help_.title.empty() && help_.title.size() < 128, "no title, or one too long");
    }

    void ReadSystemRecord(unsigned type, ByteReader data) {
        if (type == 1)
            help_.title = data.Text();
        else if (type == 2)
            help_.copyright = data.Text();
        else if (type == 3)
            help_.contents = data.U32();
        else if (type == 4)
            help_.macros.push_back(data.Text());
        else if (type == 6)
            ReadWindow(data);
        else if (type == 9)
            Demand(data.Fixed(8).empty() && data.U16() == 0x0409, "a wrong language");
        else if (type == 11)
            Demand(data.Take(5) == std::string_view("\0\0\2\0\0", 5), "a wrong character set");
        else
            throw BadHelpFile("|SYSTEM has an unknown record");
        Demand(data.Left() == 0, "a record of |SYSTEM is too long");
    }

    void ReadWindow(ByteReader& data) {
        Demand((data.U16() & 7) == 7, "the main window lacks type, name or caption");
        Demand(data.Fixed(10).empty() && data.Fixed(9) == "main", "the main window has no name");
        help_.caption = data.Fixed(51);
        Demand(data.Fixed(10).empty(), "the main window has a position");
        data.Take(8);
    }

    void ReadFonts(std::string_view file) {
        ByteReader bytes(file);
        const unsigned faces = bytes.U16(), fonts = bytes.U16();
        Demand(bytes.U16() == 8 && bytes.U16() == 8 + 32 * faces, "|FONT has wrong offsets");
        std::vector<std::string> names;
        for (unsigned i = 0; i < faces; ++i) names.push_back(bytes.Fixed(32));
        for (unsigned i = 0; i < fonts; ++i) {
            ReadFont font;
            font.attributes = bytes.U8();
            font.halfPoints = bytes.U8();
            Demand(bytes.U8() == 3, "a font is of a wrong family");
            const unsigned face = bytes.U16();
            Demand(face < faces, "a font has no face");
            font.face = names[face];
            Demand(bytes.Take(6) == std::string_view("\1\1\0\1\1\0", 6), "a font has a colour");
            help_.fonts.push_back(font);
        }
        Demand(bytes.Left() == 0, "|FONT is too long");
    }

    void ReadNumbers(std::string_view file) {
        ByteReader bytes(file);
        const unsigned count = bytes.U16();
        for (unsigned i = 0; i < count; ++i) {
            const std::uint32_t number = bytes.U32();
            Demand(help_.numbers.emplace(number, bytes.U32()).second, "a number is there twice");
        }
        Demand(bytes.Left() == 0, "|CTXOMAP is too long");
    }

    void ReadContexts() {
        const TreeRules rules = {2, 2048, "L4", FourBytes, FourBytes, BeforeAsSigned};
        for (const TreeLeaf& leaf : Tree("|CONTEXT", File("|CONTEXT"), rules).leaves)
            for (const auto& [hash, offset] : leaf.entries)
                help_.contexts.emplace(Number(hash), Number(offset));
    }

    void ReadTitles() {
        const TreeRules rules = {2, 2048, "Lz", FourBytes, TextKey, BeforeAsUnsigned};
        std::size_t count = 0;
        for (const TreeLeaf& leaf : Tree("|TTLBTREE", File("|TTLBTREE"), rules).leaves)
            for (const auto& [offset, title] : leaf.entries) {
                const ReadTopic* topic = help_.TopicAt(Number(offset));
                Demand(topic != nullptr && topic->title == title, "|TTLBTREE has a wrong title");
                ++count;
            }
        Demand(count == help_.topics.size(), "|TTLBTREE does not have all topics");
    }

    void ReadKeywords() {
        if (!files_.contains("|KWBTREE")) return;
        const auto countAndOffset = [](ByteReader& bytes) { return std::string(bytes.Take(6)); };
        const TreeRules rules = {2, 2048, "F24", TextKey, countAndOffset, BeforeWithoutCase};
        const std::string_view data = File("|KWDATA");
        ByteReader map(File("|KWMAP"));
        const ReadTree tree = Tree("|KWBTREE", File("|KWBTREE"), rules);
        Demand(map.U16() == tree.leaves.size(), "|KWMAP does not have all leaves");
        for (const TreeLeaf& leaf : tree.leaves) {
            Demand(map.U32() == help_.keywords.size() && map.U16() == leaf.page,
                   "|KWMAP has a wrong leaf");
            for (const auto& [keyword, value] : leaf.entries) {
                ByteReader place(value);
                Demand(place.U16() == 1, "a keyword does not lead to just one topic");
                Demand(place.U32() == help_.keywords.size() * 4, "a keyword has a wrong place");
                const std::string_view rest = data.substr(help_.keywords.size() * 4);
                help_.keywords.emplace_back(keyword, ByteReader(rest).U32());
            }
        }
        Demand(map.Left() == 0, "|KWMAP is too long");
        Demand(data.size() == help_.keywords.size() * 4, "|KWDATA has a wrong size");
    }

    void ReadOnePicture(std::string_view file) {
        ByteReader bytes(file);
        Demand(bytes.U16() == 0x506C && bytes.U16() == 1 && bytes.U32() == 8, "no single picture");
        const std::size_t start = bytes.Left();
        ReadPicture picture;
        Demand(bytes.U8() == 6 && bytes.U8() == 0, "a picture of another kind");
        Demand(bytes.Long() == 96 && bytes.Long() == 96 && bytes.Short() == 1,
               "a wrong resolution");
        picture.bits = bytes.Short();
        picture.width = bytes.Long();
        picture.height = bytes.Long();
        const std::uint32_t colours = bytes.Long();
        Demand(bytes.Long() == 0, "a picture tells important colours");
        const std::uint32_t size = bytes.Long();
        Demand(bytes.Long() == 0, "a picture has hotspots");
        const std::uint32_t rows = bytes.U32();
        Demand(bytes.U32() == 0, "a picture has hotspots");
        picture.palette = bytes.Take(colours * 4);
        Demand(rows == start - bytes.Left(), "a picture does not find its rows");
        Demand(size == (picture.width * picture.bits + 31) / 32 * 4 * picture.height,
               "a picture tells a wrong size");
        picture.rows = bytes.Take(size);
        Demand(bytes.Left() == 0, "a picture is too long");
        help_.pictures.push_back(picture);
    }

    // ------------------------------------------------------------ all together

    void CheckReferences() {
        Demand(help_.TopicAt(help_.contents) != nullptr, "the contents topic is not there");
        for (const auto& [number, offset] : help_.numbers) CheckOffset(offset, "a number");
        for (const auto& [hash, offset] : help_.contexts) CheckOffset(offset, "a context");
        for (const auto& [keyword, offset] : help_.keywords) CheckOffset(offset, "a keyword");
        for (const ReadTopic& topic : help_.topics) {
            if (topic.browseBack != kNowhere) CheckOffset(topic.browseBack, "browsing back");
            if (topic.browseForward != kNowhere) CheckOffset(topic.browseForward, "browsing on");
            for (const ReadParagraph& paragraph : topic.band) CheckParagraph(paragraph);
            for (const ReadParagraph& paragraph : topic.paragraphs) CheckParagraph(paragraph);
        }
    }

    void CheckOffset(std::uint32_t offset, const std::string& what) {
        Demand(help_.TopicAt(offset) != nullptr, what + " does not lead to a topic");
    }

    void CheckParagraph(const ReadParagraph& paragraph) {
        for (unsigned font : paragraph.fonts)
            Demand(font < help_.fonts.size(), "a font is not there");
        for (unsigned picture : paragraph.pictures)
            Demand(picture < help_.pictures.size(), "a picture is not there");
        for (const ReadLink& link : paragraph.links)
            Demand(help_.TopicOfLink(link) != nullptr, "a link does not lead to a topic");
    }

    const std::string& file_;
    std::map<std::string, std::string_view> files_;
    std::size_t taken_ = 0;
    ReadHelp help_;
};

}  // namespace

const ReadTopic* ReadHelp::TopicAt(std::uint32_t offset) const {
    for (const ReadTopic& topic : topics)
        if (topic.offset == offset) return &topic;
    return nullptr;
}

const ReadTopic* ReadHelp::TopicOfNumber(std::uint32_t number) const {
    const auto found = numbers.find(number);
    return found == numbers.end() ? nullptr : TopicAt(found->second);
}

const ReadTopic* ReadHelp::TopicOfLink(const ReadLink& link) const {
    const auto found = contexts.find(link.hash);
    return found == contexts.end() ? nullptr : TopicAt(found->second);
}

const ReadTopic* ReadHelp::TopicTitled(const std::string& title) const {
    for (const ReadTopic& topic : topics)
        if (topic.title == title) return &topic;
    return nullptr;
}

ReadHelp ReadHelpFile(const std::string& file) { return HelpReader(file).Read(); }

}  // namespace vistrel::help_test
