// Reads |TOPIC record by record and recomputes every address in it.
#include "tests/help/topic_reader.h"

#include <map>

namespace vistrel::help_test {
namespace {

constexpr std::uint32_t kBlock = 4096;

struct RawRecord {
    std::uint32_t position, offset, previous, next, size;
    bool isHeader;
    std::string_view data1, data2;
};

// One paragraph: its layout, then each command with the text before it.
class ParagraphReader {
 public:
    ParagraphReader(const RawRecord& record, std::uint32_t& length)
        : layout_(record.data1), texts_(record.data2) {
        const std::int32_t size = layout_.SignedLong();
        length = layout_.Short();
        Demand(size == static_cast<std::int32_t>(layout_.Left()), "a paragraph tells a wrong size");
    }

    ReadParagraph Read(std::uint32_t length, std::size_t textSize) {
        ReadLayout();
        while (!ended_) {
            const std::string text = texts_.Text();
            paragraph_.text += text;
            if (inLink_) paragraph_.links.back().text += text;
            ReadCommand();
        }
        Demand(layout_.Left() == 0, "commands follow the end of a record");
        Demand(texts_.Left() == 0, "a paragraph has more texts than commands");
        Demand(length == textSize + paragraph_.pictures.size(), "a paragraph tells a wrong length");
        Demand(!inLink_, "a link goes on behind its paragraph");
        Demand(sawEndOfParagraph_, "a record has no end of paragraph");
        return std::move(paragraph_);
    }

 private:
    void ReadLayout() {
        Demand(layout_.U8() == 0 && layout_.U8() == 0x80 && layout_.U16() == 0,
               "a paragraph starts with wrong bytes");
        const unsigned bits = layout_.U16();
        Demand((bits & ~0x0A56u) == 0, "a paragraph has layout that is not expected here");
        if (bits & 0x0002) paragraph_.spaceAbove = layout_.SignedShort();
        if (bits & 0x0004) paragraph_.spaceBelow = layout_.SignedShort();
        if (bits & 0x0010) paragraph_.leftIndent = layout_.SignedShort();
        if (bits & 0x0040) paragraph_.firstIndent = layout_.SignedShort();
        if (bits & 0x0200) {
            const int count = layout_.SignedShort();
            for (int i = 0; i < count; ++i) paragraph_.tabs.push_back(layout_.Short());
        }
    }

    void ReadCommand() {
        const unsigned command = layout_.U8();
        Demand(command == 0x80 || !paragraph_.fonts.empty(), "a paragraph starts without a font");
        switch (command) {
            case 0x80:
                paragraph_.fonts.push_back(layout_.U16());
                break;
            case 0x81:
                paragraph_.text += '\n';
                break;
            case 0x82:
                sawEndOfParagraph_ = true;
                break;
            case 0x83:
                paragraph_.text += '\t';
                break;
            case 0x86:
                ReadPicture();
                break;
            case 0x89:
                Demand(inLink_, "a link ends that has not started");
                inLink_ = false;
                break;
            case 0xE2:
            case 0xE3:
                Demand(!inLink_, "a link starts inside a link");
                inLink_ = true;
                paragraph_.links.push_back({command == 0xE2, layout_.U32(), ""});
                break;
            case 0xFF:
                ended_ = true;
                break;
            default:
                throw BadHelpFile("command " + std::to_string(command) + " is not known");
        }
    }

    void ReadPicture() {
        Demand(layout_.U8() == 0x22 && layout_.SignedLong() == 4 && layout_.Short() == 1 &&
                   layout_.U16() == 0,
               "a picture has wrong bytes");
        paragraph_.pictures.push_back(layout_.U16());
    }

    ByteReader layout_;
    ByteReader texts_;
    ReadParagraph paragraph_;
    bool inLink_ = false, ended_ = false, sawEndOfParagraph_ = false;
};

class TopicReader {
 public:
    explicit TopicReader(std::string_view file) : file_(file) {}

    std::vector<ReadTopic> Read() {
        ReadRecords();
        CheckBlocks();
        std::size_t next = 0;
        while (next + 1 < records_.size()) next = ReadOneTopic(next);
        CheckEnd(records_.back());
        return std::move(topics_);
    }

 private:
    // Follows the chain of records; the offset counts the text in each block.
    void ReadRecords() {
        std::uint32_t position = 12, count = 0, expected = 12;
        while (position != kNowhere) {
            const bool startsBlock = (position & 0x3FFF) == 12;
            Demand(position == expected || startsBlock, "there is a gap between two records");
            if (startsBlock) count = 0;
            RawRecord record = ReadRecord(position);
            record.offset = (position >> 14) * 0x8000 + count;
            Demand(record.previous == (records_.empty() ? kNowhere : records_.back().position),
                   "a record does not know the one before");
            if (!record.isHeader) {
                std::uint32_t length = 0;
                ParagraphReader(record, length);
                count += length;
            }
            expected = position + record.size;
            Demand((expected & 0x3FFF) <= kBlock &&
                       (record.next == kNowhere || record.next > position),
                   "a record goes beyond its block");
            records_.push_back(record);
            position = record.next;
        }
        Demand(FilePlace(expected) == file_.size(), "the last block does not end with its records");
    }

    static std::size_t FilePlace(std::uint32_t position) {
        return (position >> 14) * kBlock + (position & 0x3FFF);
    }

    RawRecord ReadRecord(std::uint32_t position) {
        Demand(FilePlace(position) < file_.size(), "a record lies outside the file");
        ByteReader bytes(file_.substr(FilePlace(position)));
        RawRecord record = {};
        record.position = position;
        record.size = bytes.U32();
        const std::uint32_t length2 = bytes.U32();
        record.previous = bytes.U32();
        record.next = bytes.U32();
        const std::uint32_t length1 = bytes.U32();
        const unsigned type = bytes.U8();
        Demand(type == 2 || type == 0x20, "a record has an unknown type");
        record.isHeader = type == 2;
        Demand(length1 >= 21 && record.size == length1 + length2, "a record tells wrong sizes");
        record.data1 = bytes.Take(length1 - 21);
        record.data2 = bytes.Take(length2);
        return record;
    }

    void CheckBlocks() {
        std::map<std::uint32_t, std::size_t> firstOfBlock;
        for (std::size_t i = 0; i < records_.size(); ++i)
            firstOfBlock.emplace(records_[i].position >> 14, i);
        const std::size_t blocks = (file_.size() + kBlock - 1) / kBlock;
        Demand(firstOfBlock.size() == blocks, "a block holds no record");
        for (const auto& [block, first] : firstOfBlock) {
            ByteReader header(file_.substr(block * kBlock));
            std::uint32_t lastHeader = 0;
            for (std::size_t i = 0; i < first; ++i)
                if (records_[i].isHeader) lastHeader = records_[i].position;
            Demand(header.U32() == (first == 0 ? kNowhere : records_[first - 1].position),
                   "a block does not know the record before it");
            Demand(header.U32() == records_[first].position, "a block misses its first record");
            Demand(header.U32() == lastHeader, "a block does not know the topic before it");
        }
    }

    // Reads the topic whose header is record `first`; returns the next header.
    std::size_t ReadOneTopic(std::size_t first) {
        const RawRecord& header = records_[first];
        Demand(header.isHeader && header.data1.size() == 28,
               "a topic does not start with a header");
        ByteReader data(header.data1);
        const std::uint32_t blockSize = data.U32();
        ReadTopic topic;
        topic.offset = header.offset;
        topic.title = header.data2;
        Demand(topic.title.find('\0') == std::string::npos, "a title has a zero byte");
        topic.browseBack = data.U32();
        topic.browseForward = data.U32();
        Demand(data.U32() == topics_.size(), "topics are not numbered in order");
        const std::uint32_t band = data.U32(), scroll = data.U32(), next = data.U32();

        std::uint32_t size = header.size;
        bool inBand = band != kNowhere;
        std::size_t i = first + 1;
        Demand(records_[i].position == (inBand ? band : scroll), "a topic does not find its text");
        Demand(records_[i].position >> 14 == header.position >> 14,
               "a topic is torn from its text");
        for (; !records_[i].isHeader; ++i) {
            if (records_[i].position == scroll) inBand = false;
            std::uint32_t length = 0;
            ParagraphReader reader(records_[i], length);
            (inBand ? topic.band : topic.paragraphs)
                .push_back(reader.Read(length, records_[i].data2.size()));
            size += records_[i].size;
        }
        Demand(!topic.paragraphs.empty(), "a topic has no text that scrolls");
        Demand(size == blockSize, "a topic tells a wrong size");
        Demand(records_[i].position == next, "a topic does not find the next one");
        topics_.push_back(topic);
        return i;
    }

    void CheckEnd(const RawRecord& end) {
        ByteReader data(end.data1);
        Demand(end.isHeader && end.data2.empty() && end.data1.size() == 28, "the end is missing");
        Demand(data.U32() == 49 && data.U32() == kNowhere && data.U32() == kNowhere &&
                   data.U32() == topics_.size() && data.U32() == kNowhere &&
                   data.U32() == kNowhere && data.U32() == kNowhere,
               "the end record has wrong fields");
    }

    std::string_view file_;
    std::vector<RawRecord> records_;
    std::vector<ReadTopic> topics_;
};

}  // namespace

std::vector<ReadTopic> ReadTopics(std::string_view file) { return TopicReader(file).Read(); }

}  // namespace vistrel::help_test
