// Reads the marker segments of JPEG files (ITU-T T.81, annex B).
#include "pictures/jpg/markers.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "pictures/jpg/scan/walk.h"

namespace vistrel::jpg {
namespace {

constexpr int kBaseline = 0xC0, kExtended = 0xC1, kProgressive = 0xC2;
constexpr int kHuffmanTables = 0xC4;
constexpr int kArithmeticLater = 0xC8;
constexpr int kArithmeticTables = 0xCC;
constexpr int kFirstRestart = 0xD0, kStart = 0xD8, kEnd = 0xD9, kScan = 0xDA;
constexpr int kQuantTables = 0xDB, kLines = 0xDC, kRestartInterval = 0xDD;
constexpr int kJfif = 0xE0, kExif = 0xE1, kAdobe = 0xEE, kComment = 0xFE;
constexpr int kTemporary = 0x01;

template <class Bytes>
int Word(Bytes&& bytes, std::size_t at) {
    return bytes[at] << 8 | bytes[at + 1];
}

int DivideUp(int value, int by) { return (value + by - 1) / by; }

bool IsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != kHuffmanTables &&
           marker != kArithmeticLater && marker != kArithmeticTables;
}

bool StandsAlone(int marker) {
    return marker == kTemporary || (marker >= kFirstRestart && marker < kStart);
}

// What applications write for themselves, and comments.
bool IsNeedless(int marker) {
    return (marker >= kJfif && marker < kJfif + 16) || marker == kComment;
}

// Of these, what is looked into.
bool TellsSomething(int marker) { return marker == kJfif || marker == kExif || marker == kAdobe; }

}  // namespace

JpgMarkers::JpgMarkers(const pictures::PictureFile& file)
    : whole_(file), file_(file), tables_(std::make_unique<JpgTables>()) {
    const bool isJpg = file_.size() > 3 && file_[0] == 0xFF && file_[1] == kStart;
    position_ = isJpg ? 2 : file_.size();
}

bool JpgMarkers::NextScan() {
    for (;;) {
        const std::size_t at = FindMarker(file_, position_);
        const pictures::FileBytes start = file_.From(at, 4);
        if (start.size() < 4) return false;
        const int marker = start[1];
        position_ = at + 2;
        if (StandsAlone(marker)) continue;
        if (marker == kStart || marker == kEnd) return false;
        // A length counts its own two bytes. Segments that are not needed are skipped even where
        // it says less, as other programs do.
        const std::size_t given = static_cast<std::size_t>(Word(start, 2));
        if (given < 2 && !IsNeedless(marker)) return false;
        const std::size_t length = std::max<std::size_t>(given, 2);
        if (position_ + length > file_.size()) return false;
        std::vector<std::uint8_t> room;
        pictures::FileBytes content;
        if (!IsNeedless(marker) || TellsSomething(marker))
            content = whole_.Piece(position_ + 2, length - 2, room);
        position_ += length;
        if (!ReadSegment(marker, content)) return false;
        if (marker == kScan) return true;
    }
}

// False when the file cannot be read on.
bool JpgMarkers::ReadSegment(int marker, pictures::FileBytes content) {
    if (IsFrame(marker)) {
        if (marker != kBaseline && marker != kExtended && marker != kProgressive) return false;
        frame_.progressive = marker == kProgressive;
        return frame_.components.empty() && ReadFrame(content);
    }
    if (marker == kScan) return ReadScan(content);
    if (marker == kQuantTables) return ReadQuantTables(content);
    if (marker == kHuffmanTables) return ReadHuffmanTables(content);
    if (marker == kRestartInterval && content.size() >= 2) {
        tables_->restartInterval = Word(content, 0);
    }
    ReadApplication(marker, content);
    return true;
}

bool JpgMarkers::ReadFrame(pictures::FileBytes content) {
    if (content.size() < 6 || content[0] != 8) return false;
    frame_.height = Word(content, 1);
    frame_.width = Word(content, 3);
    const std::size_t count = content[5];
    if ((count != 1 && count != 3 && count != 4) || content.size() < 6 + count * 3) return false;
    for (std::size_t i = 0; i < count; ++i) {
        const pictures::FileBytes entry = content.subspan(6 + i * 3, 3);
        JpgComponent component;
        component.id = entry[0];
        component.across = entry[1] >> 4;
        component.down = entry[1] & 15;
        component.quantIndex = entry[2];
        if (component.across < 1 || component.across > 4 || component.down < 1 ||
            component.down > 4 || component.quantIndex > 3) {
            return false;
        }
        frame_.maxAcross = std::max(frame_.maxAcross, component.across);
        frame_.maxDown = std::max(frame_.maxDown, component.down);
        frame_.components.push_back(component);
    }
    return frame_.height == 0 || LayOut();
}

// Works out how many samples and blocks each component has, once the height is known.
bool JpgMarkers::LayOut() {
    if (!pictures::IsPlausibleSize(frame_.width, frame_.height)) return false;
    frame_.mcusAcross = DivideUp(frame_.width, 8 * frame_.maxAcross);
    frame_.mcusDown = DivideUp(frame_.height, 8 * frame_.maxDown);
    for (JpgComponent& component : frame_.components) {
        component.width = DivideUp(frame_.width * component.across, frame_.maxAcross);
        component.height = DivideUp(frame_.height * component.down, frame_.maxDown);
        component.blocksAcross = DivideUp(component.width, 8);
        component.blocksDown = DivideUp(component.height, 8);
        component.paddedAcross = frame_.mcusAcross * component.across;
        component.paddedDown = frame_.mcusDown * component.down;
    }
    return true;
}

bool JpgMarkers::ReadScan(pictures::FileBytes content) {
    if (frame_.components.empty() || content.empty()) return false;
    const std::size_t count = content[0];
    if (count < 1 || count > 4 || content.size() < 4 + count * 2) return false;
    scan_ = {};
    scan_.dataStart = position_;
    for (std::size_t i = 0; i < count; ++i) {
        const int id = content[1 + i * 2], choice = content[2 + i * 2];
        const auto found = std::find_if(frame_.components.begin(), frame_.components.end(),
                                        [id](const JpgComponent& c) { return c.id == id; });
        if (found == frame_.components.end() || choice >> 4 > 3 || (choice & 15) > 3) return false;
        const int index = static_cast<int>(found - frame_.components.begin());
        for (const JpgScanPart& other : scan_.parts) {
            if (other.component == index) return false;
        }
        scan_.parts.push_back({index, choice >> 4, choice & 15});
        if (!found->hasQuant) {
            // A component keeps the table that is there at its first scan, whatever comes later.
            const std::size_t table = static_cast<std::size_t>(found->quantIndex);
            if (!tables_->hasQuant[table]) return false;
            found->quant = tables_->quant[table];
            found->hasQuant = true;
        }
    }
    if (frame_.progressive) {
        const pictures::FileBytes band = content.subspan(1 + count * 2, 3);
        scan_.first = band[0];
        scan_.last = band[1];
        scan_.high = band[2] >> 4;
        scan_.low = band[2] & 15;
        const bool isBand =
            scan_.IsDc() ? scan_.last == 0
                         : scan_.last >= scan_.first && scan_.last < kBlockSize && count == 1;
        if (!isBand || scan_.low > 13) return false;
    }
    if (frame_.height == 0) {
        frame_.height = HeightBehindScan();
        if (!LayOut()) return false;
    }
    SupplyUsualTables();
    return ForEachTable([](const HuffmanTable& table) { return table.isDefined(); });
}

bool JpgMarkers::BuildTables() {
    return ForEachTable([](HuffmanTable& table) { return table.Build(); });
}

// Up to the first restart marker, NextScan finds the way by itself.
void JpgMarkers::PassOverScan() {
    if (tables_->restartInterval == 0) return;
    const ScanMcus mcus(frame_, scan_);
    const std::int64_t last = std::int64_t{mcus.across} * mcus.down - 1;
    position_ = FindEndOfScan(file_, scan_.dataStart, last / tables_->restartInterval);
}

// True when `use` is true of every Huffman table that the scan reads by.
template <class UseTable>
bool JpgMarkers::ForEachTable(UseTable use) {
    const bool readsDc = scan_.IsDc() && !scan_.IsRefinement();
    const bool readsAc = scan_.last > 0;
    for (const JpgScanPart& part : scan_.parts) {
        if (readsDc && !use(tables_->dc[static_cast<std::size_t>(part.dcTable)])) return false;
        if (readsAc && !use(tables_->ac[static_cast<std::size_t>(part.acTable)])) return false;
    }
    return true;
}

// A frame without a height has it in a segment right behind its first scan.
int JpgMarkers::HeightBehindScan() {
    std::size_t at = FindMarker(file_, position_);
    while (at + 6 <= file_.size() && StandsAlone(file_[at + 1])) at = FindMarker(file_, at + 2);
    const bool isThere = at + 6 <= file_.size() && file_[at + 1] == kLines;
    return isThere ? Word(file_, at + 4) : 0;
}

bool JpgMarkers::ReadQuantTables(pictures::FileBytes content) {
    while (!content.empty()) {
        const std::size_t width = content[0] >> 4 ? 2 : 1;
        const std::size_t index = content[0] & 15;
        if (index > 3 || content.size() < 1 + kBlockSize * width) return false;
        for (std::size_t i = 0; i < kBlockSize; ++i) {
            tables_->quant[index][i] =
                static_cast<std::uint16_t>(width == 2 ? Word(content, 1 + i * 2) : content[1 + i]);
        }
        tables_->hasQuant[index] = true;
        content = content.subspan(1 + kBlockSize * width);
    }
    return true;
}

bool JpgMarkers::ReadHuffmanTables(pictures::FileBytes content) {
    constexpr std::size_t kLengths = 16;
    while (content.size() > kLengths) {
        const bool isAc = content[0] >> 4 != 0;
        const std::size_t index = content[0] & 15;
        const pictures::FileBytes counts = content.subspan(1, kLengths);
        const auto symbols =
            std::accumulate(counts.data(), counts.data() + kLengths, std::size_t{0});
        if (index > 3 || content.size() < 1 + kLengths + symbols) return false;
        HuffmanTable& table = isAc ? tables_->ac[index] : tables_->dc[index];
        table.Define({counts, content.subspan(1 + kLengths, symbols)}, !isAc);
        content = content.subspan(1 + kLengths + symbols);
    }
    return true;
}

// Behind the first scan it is too late: size and colours of the picture have been told by then.
void JpgMarkers::ReadApplication(int marker, pictures::FileBytes content) {
    if (!scan_.parts.empty()) return;
    if (marker == kJfif && content.size() >= 5 && std::memcmp(content.data(), "JFIF", 5) == 0) {
        hasJfif_ = true;
    }
    if (marker == kExif && orientation_ == 0) orientation_ = ReadExifOrientation(content);
    if (marker == kAdobe && content.size() >= 12 && std::memcmp(content.data(), "Adobe", 5) == 0) {
        adobeTransform_ = content[11];
    }
}

// Frames taken out of a video come without Huffman tables and mean the usual ones.
void JpgMarkers::SupplyUsualTables() {
    for (std::size_t i = 0; i < 2; ++i) {
        if (!tables_->dc[i].isDefined()) tables_->dc[i].Define(UsualDcCode(i == 1), true);
        if (!tables_->ac[i].isDefined()) tables_->ac[i].Define(UsualAcCode(i == 1), false);
    }
}

JpgColor JpgMarkers::Color() const {
    const auto& parts = frame_.components;
    if (parts.size() == 1) return JpgColor::Grey;
    if (parts.size() == 4) {
        return adobeTransform_ > 0 ? JpgColor::Ycck : JpgColor::Cmyk;
    }
    if (hasJfif_) return JpgColor::Ycc;
    if (adobeTransform_ >= 0) return adobeTransform_ == 0 ? JpgColor::Rgb : JpgColor::Ycc;
    const bool namedRgb = parts[0].id == 'R' && parts[1].id == 'G' && parts[2].id == 'B';
    return namedRgb ? JpgColor::Rgb : JpgColor::Ycc;
}

}  // namespace vistrel::jpg
