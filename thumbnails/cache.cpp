#include "thumbnails/cache.h"

#include <algorithm>
#include <utility>

#include "pictures/little_endian.h"
#include "thumbnails/packed_pixels.h"

namespace vistrel::thumbnails {
namespace {

constexpr std::size_t kHeaderBytes = 32;
constexpr std::size_t kRowBytes = 32;
constexpr std::size_t kRoomForPixels = std::size_t{kKeptWidth} * kKeptHeight * 2;
constexpr std::uint32_t kMark = 0x32485456;  // "VTH2"; another format gets another number

void Append(std::vector<std::uint8_t>& bytes, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
}

std::uint64_t QuadWord(std::span<const std::uint8_t> bytes, std::size_t at) {
    return pictures::DoubleWord(bytes, at) | std::uint64_t{pictures::DoubleWord(bytes, at + 4)}
                                                 << 32;
}

/// Another number for any bytes that differ in one word, and for nearly all others. Whole words are
/// taken at once: a sum byte by byte would take an old processor as long as the reading.
std::uint32_t SumOf(std::span<const std::uint8_t> words) {
    std::uint32_t sum = 0x811c9dc5;
    for (std::size_t i = 0; i + 4 <= words.size(); i += 4) {
        const std::uint8_t* const word = &words[i];
        sum = (sum ^ (word[0] | word[1] << 8 | word[2] << 16 | std::uint32_t{word[3]} << 24)) *
              0x01000193;
    }
    return sum;
}

constexpr std::uint64_t kFirstKey = 0xcbf29ce484222325;

std::uint64_t WithByte(std::uint64_t key, std::uint8_t byte) {
    return (key ^ byte) * 0x100000001b3;
}

std::uint64_t KeyOf(const std::string& path) {
    std::uint64_t key = kFirstKey;
    for (const char c : path) key = WithByte(key, static_cast<std::uint8_t>(c));
    return key;
}

bool HasRoomFor(int width, int height) {
    return width > 0 && width <= kKeptWidth && height > 0 && height <= kKeptHeight;
}

/// The bytes with their sum behind them, filled up to `size`.
std::vector<std::uint8_t> Summed(std::vector<std::uint8_t> bytes, std::size_t size) {
    bytes.resize(size - 4);
    Append(bytes, SumOf(bytes));
    return bytes;
}

}  // namespace

std::uint64_t Source::Stamp() const {
    std::uint64_t stamp = kFirstKey;
    for (const std::uint64_t number : {modified, size})
        for (int shift = 0; shift < 64; shift += 8)
            stamp = WithByte(stamp, static_cast<std::uint8_t>(number >> shift));
    return stamp;
}

Cache::Cache(std::string path, std::uint32_t most) : path_(std::move(path)), most_(most) {}

std::vector<std::uint8_t> Cache::Header() const {
    std::vector<std::uint8_t> bytes;
    for (const std::uint32_t number :
         {kMark, most_, std::uint32_t{kKeptWidth}, std::uint32_t{kKeptHeight}})
        Append(bytes, number);
    return Summed(bytes, kHeaderBytes);
}

std::vector<std::uint8_t> Cache::BytesOf(const Row& row) {
    std::vector<std::uint8_t> bytes;
    for (const std::uint64_t number : {row.key, row.stamp}) {
        Append(bytes, static_cast<std::uint32_t>(number));
        Append(bytes, static_cast<std::uint32_t>(number >> 32));
    }
    const std::uint32_t size = row.width | std::uint32_t{row.height} << 16;
    for (const std::uint32_t number : {row.turn, row.pixelSum, size}) Append(bytes, number);
    return Summed(bytes, kRowBytes);
}

/// A free row where the bytes do not fit their sum, or tell of no pixels or more than have room.
Cache::Row Cache::RowFrom(std::span<const std::uint8_t> bytes) {
    if (SumOf(bytes.first(kRowBytes - 4)) != pictures::DoubleWord(bytes, kRowBytes - 4)) return {};
    const std::uint32_t size = pictures::DoubleWord(bytes, 24);
    const Row row{QuadWord(bytes, 0),
                  QuadWord(bytes, 8),
                  pictures::DoubleWord(bytes, 16),
                  pictures::DoubleWord(bytes, 20),
                  static_cast<std::uint16_t>(size & 0xffff),
                  static_cast<std::uint16_t>(size >> 16)};
    return HasRoomFor(row.width, row.height) ? row : Row{};
}

std::size_t Cache::PlaceOfRow(std::size_t number) const {
    return kHeaderBytes + number * kRowBytes;
}

std::size_t Cache::PlaceOfPixels(std::size_t number) const {
    return PlaceOfRow(most_) + number * kRoomForPixels;
}

// A file of another kind or with a damaged header is begun anew: what was in it can be made again.
bool Cache::Open() {
    if (std::exchange(tried_, true)) return file_.IsOpen();
    rows_.resize(most_);
    const auto wanted = Header();
    std::vector<std::uint8_t> found(kHeaderBytes);
    file_ = OpenFile::Existing(path_);
    if (file_.IsOpen() && file_.ReadAt(0, found) == found.size() && found == wanted) {
        ReadRows();
        return true;
    }
    file_ = {};
    file_ = OpenFile::Empty(path_);
    if (!file_.WriteAt(0, wanted)) file_ = {};
    return file_.IsOpen();
}

void Cache::ReadRows() {
    std::vector<std::uint8_t> table(most_ * kRowBytes);
    table.resize(file_.ReadAt(kHeaderBytes, table));
    for (std::size_t i = 0; (i + 1) * kRowBytes <= table.size(); ++i)
        rows_[i] = RowFrom(std::span(table).subspan(i * kRowBytes, kRowBytes));
}

std::vector<Cache::Row>::iterator Cache::RowOfPath(const std::string& path) {
    return std::find_if(rows_.begin(), rows_.end(), [key = KeyOf(path)](const Row& row) {
        return row.turn != 0 && row.key == key;
    });
}

std::optional<pictures::RgbPicture> Cache::PictureOf(std::vector<Row>::iterator row) {
    std::vector<std::uint8_t> pixels(row->PixelBytes());
    const auto number = static_cast<std::size_t>(row - rows_.begin());
    if (file_.ReadAt(PlaceOfPixels(number), pixels) != pixels.size() ||
        SumOf(pixels) != row->pixelSum)
        return std::nullopt;
    return UnpackPixels(pixels, row->width, row->height);
}

std::optional<pictures::RgbPicture> Cache::Find(const Source& source) {
    if (!Open()) return std::nullopt;
    const auto row = RowOfPath(source.path);
    if (row == rows_.end() || row->stamp != source.Stamp()) return std::nullopt;
    return PictureOf(row);
}

std::optional<KeptPicture> Cache::FindOfPath(const std::string& path) {
    if (!Open()) return std::nullopt;
    const auto row = RowOfPath(path);
    if (row == rows_.end()) return std::nullopt;
    auto picture = PictureOf(row);
    if (!picture) return std::nullopt;
    return KeptPicture{std::move(*picture), row->stamp};
}

std::vector<Cache::Row>::iterator Cache::PlaceFor(const std::string& path) {
    const auto same = RowOfPath(path);
    if (same != rows_.end()) return same;
    return std::min_element(rows_.begin(), rows_.end(),
                            [](const Row& a, const Row& b) { return a.turn < b.turn; });
}

void Cache::Keep(const Source& source, const pictures::RgbPicture& picture) {
    if (!HasRoomFor(picture.width, picture.height) || !Open()) return;
    auto pixels = PackPixels(picture);
    Row row{KeyOf(source.path),
            source.Stamp(),
            0,
            SumOf(pixels),
            static_cast<std::uint16_t>(picture.width),
            static_cast<std::uint16_t>(picture.height)};
    for (const Row& other : rows_) row.turn = std::max(row.turn, other.turn);
    ++row.turn;
    const auto place = PlaceFor(source.path);
    const auto number = static_cast<std::size_t>(place - rows_.begin());
    // Pixels first: where the row does not follow them, the one that is there tells that they are
    // another's.
    *place = {};
    pixels.resize(kRoomForPixels);
    if (file_.WriteAt(PlaceOfPixels(number), pixels) &&
        file_.WriteAt(PlaceOfRow(number), BytesOf(row)))
        *place = row;
}

void Cache::Drop(const std::string& path) {
    if (!Open()) return;
    const auto row = RowOfPath(path);
    if (row == rows_.end()) return;
    *row = {};
    file_.WriteAt(PlaceOfRow(static_cast<std::size_t>(row - rows_.begin())), BytesOf(*row));
}

}  // namespace vistrel::thumbnails
