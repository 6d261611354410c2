// Makes |TOPIC: first every record without its addresses, then the place of each, then the bytes.
// The addresses come in two kinds: a position (TOPICPOS) finds a record, an offset (TOPICOFFSET)
// counts the characters of the text before it.
#include "help/compiler/topic_text.h"

#include <algorithm>

#include "help/compiler/bytes.h"
#include "help/compiler/paragraph_record.h"

namespace vistrel::help {
namespace {

constexpr std::uint32_t kBlockSize = 4096;
constexpr std::uint32_t kBlockHeader = 12;
constexpr std::uint32_t kBlockRoom = kBlockSize - kBlockHeader;
constexpr std::uint32_t kRecordHeader = 21;
constexpr std::uint32_t kTopicHeaderData = 28;
constexpr std::uint32_t kHeaderType = 0x02;
constexpr std::uint32_t kTextType = 0x20;

struct Record {
    std::uint32_t type = kTextType;
    std::string data1;
    std::string data2;
    std::uint32_t textLength = 0;
    SourcePlace place;
    std::uint32_t position = 0;
    std::uint32_t offset = 0;

    std::uint32_t Size() const {
        const std::size_t first = type == kHeaderType ? kTopicHeaderData : data1.size();
        return static_cast<std::uint32_t>(kRecordHeader + first + data2.size());
    }
};

// The records of one topic: header, heading band (none in a pop-up), text.
struct TopicRecords {
    std::size_t header = 0;
    std::size_t band = 0;  // 0: none
    std::size_t firstText = 0;
    std::size_t end = 0;
};

class TopicTextMaker {
 public:
    TopicTextMaker(const HelpSource& help, Pictures& pictures, SourceErrors& errors)
        : help_(help), pictures_(pictures), errors_(errors) {}

    TopicText Make() {
        for (const Topic& topic : help_.topics) AddTopic(topic);
        AddHeader("", {});
        PlaceRecords();
        FillHeaders();
        TopicText result;
        result.file = Blocks();
        for (const TopicRecords& topic : topics_)
            result.topicOffsets.push_back(records_[topic.header].offset);
        return result;
    }

 private:
    // ------------------------------------------------------------ the records

    void AddTopic(const Topic& topic) {
        TopicRecords records;
        records.header = records_.size();
        AddHeader(topic.title, topic.place);
        if (!topic.popup) {
            records.band = records_.size();
            AddParagraph(TitleParagraph(topic));
        }
        records.firstText = records_.size();
        for (const Paragraph& paragraph : topic.paragraphs) AddParagraph(paragraph);
        records.end = records_.size();
        topics_.push_back(records);
    }

    static Paragraph TitleParagraph(const Topic& topic) {
        const Piece title = {Piece::Kind::Text, topic.title, false, false, topic.place};
        return {Paragraph::Style::Title, 0, {title}, topic.place};
    }

    void AddHeader(const std::string& title, const SourcePlace& place) {
        Record record;
        record.type = kHeaderType;
        record.data2 = title;
        record.place = place;
        records_.push_back(record);
    }

    void AddParagraph(const Paragraph& paragraph) {
        const ParagraphRecord made = MakeParagraphRecord(paragraph, pictures_);
        records_.push_back({kTextType, made.commands, made.texts, made.length, paragraph.place});
    }

    // ------------------------------------------------------------ their places

    // A record never crosses a block's border, and a header stays with the paragraph after it.
    void PlaceRecords() {
        std::uint32_t block = 0, used = 0, offset = 0;
        for (std::size_t i = 0; i < records_.size(); ++i) {
            Record& record = records_[i];
            std::uint32_t need = record.Size();
            if (record.type == kHeaderType && i + 1 < records_.size())
                need += records_[i + 1].Size();
            if (need > kBlockRoom) errors_.push_back({record.place, "the paragraph is too long"});
            if (need > kBlockRoom - used) {
                ++block;
                used = 0;
                offset = 0;
            }
            record.position = block * 0x4000 + kBlockHeader + used;
            record.offset = block * 0x8000 + offset;
            // A record too long for any block is an error already; the count goes on behind it.
            used = std::min(used + record.Size(), kBlockRoom);
            offset += record.textLength;
        }
    }

    // ------------------------------------------------------------ topic headers

    void FillHeaders() {
        for (std::size_t i = 0; i < topics_.size(); ++i) FillHeader(i);
        Record& end = records_.back();
        PutU32(end.data1, kRecordHeader + kTopicHeaderData);
        PutU32(end.data1, kNowhere);
        PutU32(end.data1, kNowhere);
        PutU32(end.data1, static_cast<std::uint32_t>(topics_.size()));
        for (int i = 0; i < 3; ++i) PutU32(end.data1, kNowhere);
    }

    void FillHeader(std::size_t number) {
        const TopicRecords& topic = topics_[number];
        std::uint32_t size = 0;
        for (std::size_t i = topic.header; i < topic.end; ++i) size += records_[i].Size();
        std::string& data = records_[topic.header].data1;
        PutU32(data, size);
        PutU32(data, BrowseNeighbour(number, -1));
        PutU32(data, BrowseNeighbour(number, +1));
        PutU32(data, static_cast<std::uint32_t>(number));
        PutU32(data, topic.band == 0 ? kNowhere : records_[topic.band].position);
        PutU32(data, records_[topic.firstText].position);
        PutU32(data, records_[topic.end].position);
    }

    // The offset of the nearest topic of the same browse sequence in one direction.
    std::uint32_t BrowseNeighbour(std::size_t number, int step) const {
        const std::string& group = help_.topics[number].browseGroup;
        if (group.empty()) return kNowhere;
        const auto count = static_cast<std::ptrdiff_t>(topics_.size());
        for (auto i = static_cast<std::ptrdiff_t>(number) + step; i >= 0 && i < count; i += step) {
            const auto other = static_cast<std::size_t>(i);
            if (help_.topics[other].browseGroup == group)
                return records_[topics_[other].header].offset;
        }
        return kNowhere;
    }

    // ------------------------------------------------------------ the bytes

    std::string Blocks() const {
        std::string file;
        std::uint32_t lastHeader = 0;
        for (std::size_t i = 0; i < records_.size(); ++i) {
            const Record& record = records_[i];
            const std::uint32_t block = record.position >> 14;
            if (i == 0 || records_[i - 1].position >> 14 != block) {
                file.resize(block * kBlockSize, '\0');
                PutU32(file, i == 0 ? kNowhere : records_[i - 1].position);
                PutU32(file, record.position);
                PutU32(file, lastHeader);
            }
            if (record.type == kHeaderType) lastHeader = record.position;
            PutRecord(file, i);
        }
        return file;
    }

    void PutRecord(std::string& file, std::size_t number) const {
        const Record& record = records_[number];
        const bool isLast = number + 1 == records_.size();
        PutU32(file, record.Size());
        PutU32(file, static_cast<std::uint32_t>(record.data2.size()));
        PutU32(file, number == 0 ? kNowhere : records_[number - 1].position);
        PutU32(file, isLast ? kNowhere : records_[number + 1].position);
        PutU32(file, kRecordHeader + static_cast<std::uint32_t>(record.data1.size()));
        PutU8(file, record.type);
        file += record.data1;
        file += record.data2;
    }

    const HelpSource& help_;
    Pictures& pictures_;
    SourceErrors& errors_;
    std::vector<Record> records_;
    std::vector<TopicRecords> topics_;
};

}  // namespace

TopicText MakeTopicText(const HelpSource& help, Pictures& pictures, SourceErrors& errors) {
    return TopicTextMaker(help, pictures, errors).Make();
}

}  // namespace vistrel::help
