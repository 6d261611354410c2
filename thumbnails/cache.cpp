#include "thumbnails/cache.h"

#include <algorithm>
#include <utility>

#include "pictures/little_endian.h"
#include "thumbnails/packed_pixels.h"

namespace vistrel::thumbnails {
namespace {

constexpr std::size_t kHeaderBytes = 32;
constexpr std::size_t kRowBytes = 32;
constexpr std::size_t kPixelBytes = std::size_t{kKeptWidth} * kKeptHeight * 2;
constexpr std::uint32_t kMark = 0x31485456;  // "VTH1"; another format gets another number

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

std::uint64_t KeyOf(const std::string& path) {
    std::uint64_t key = 0xcbf29ce484222325;
    for (const char c : path) key = (key ^ static_cast<std::uint8_t>(c)) * 0x100000001b3;
    return key;
}

/// The bytes with their sum behind them, filled up to `size`.
std::vector<std::uint8_t> Summed(std::vector<std::uint8_t> bytes, std::size_t size) {
    bytes.resize(size - 4);
    Append(bytes, SumOf(bytes));
    return bytes;
}

}  // namespace

Cache::Cache(std::string path, std::uint32_t most) : path_(std::move(path)), most_(most) {}

std::vector<std::uint8_t> Cache::Header() const {
    std::vector<std::uint8_t> bytes;
    for (const std::uint32_t number :
         {kMark, most_, std::uint32_t{kKeptWidth}, std::uint32_t{kKeptHeight}})
        Append(bytes, number);
    return Summed(bytes, kHeaderBytes);
}

Cache::Row Cache::RowOf(const Source& source) {
    return {KeyOf(source.path), source.modified, static_cast<std::uint32_t>(source.size)};
}

std::vector<std::uint8_t> Cache::BytesOf(const Row& row) {
    std::vector<std::uint8_t> bytes;
    for (const std::uint64_t number : {row.key, row.modified}) {
        Append(bytes, static_cast<std::uint32_t>(number));
        Append(bytes, static_cast<std::uint32_t>(number >> 32));
    }
    for (const std::uint32_t number : {row.size, row.turn, row.pixelSum}) Append(bytes, number);
    return Summed(bytes, kRowBytes);
}

/// A free row where the bytes do not fit their sum.
Cache::Row Cache::RowFrom(std::span<const std::uint8_t> bytes) {
    if (SumOf(bytes.first(kRowBytes - 4)) != pictures::DoubleWord(bytes, kRowBytes - 4)) return {};
    return {QuadWord(bytes, 0), QuadWord(bytes, 8), pictures::DoubleWord(bytes, 16),
            pictures::DoubleWord(bytes, 20), pictures::DoubleWord(bytes, 24)};
}

std::size_t Cache::PlaceOfRow(std::size_t number) const {
    return kHeaderBytes + number * kRowBytes;
}

std::size_t Cache::PlaceOfPixels(std::size_t number) const {
    return PlaceOfRow(most_) + number * kPixelBytes;
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

std::optional<pictures::RgbPicture> Cache::Find(const Source& source) {
    if (!Open()) return std::nullopt;
    const Row wanted = RowOf(source);
    const auto row = std::find_if(rows_.begin(), rows_.end(),
                                  [&](const Row& r) { return r.turn != 0 && r.key == wanted.key; });
    if (row == rows_.end() || row->modified != wanted.modified || row->size != wanted.size)
        return std::nullopt;
    std::vector<std::uint8_t> pixels(kPixelBytes);
    const auto number = static_cast<std::size_t>(row - rows_.begin());
    if (file_.ReadAt(PlaceOfPixels(number), pixels) != pixels.size() ||
        SumOf(pixels) != row->pixelSum)
        return std::nullopt;
    return UnpackPixels(pixels, kKeptWidth, kKeptHeight);
}

std::size_t Cache::PlaceFor(const Row& row) const {
    const auto same = std::find_if(rows_.begin(), rows_.end(),
                                   [&](const Row& r) { return r.turn != 0 && r.key == row.key; });
    const auto oldest = std::min_element(
        rows_.begin(), rows_.end(), [](const Row& a, const Row& b) { return a.turn < b.turn; });
    return static_cast<std::size_t>((same != rows_.end() ? same : oldest) - rows_.begin());
}

void Cache::Keep(const Source& source, const pictures::RgbPicture& picture) {
    const auto pixels = PackPixels(picture);
    if (!Open() || pixels.size() != kPixelBytes) return;
    Row row = RowOf(source);
    const std::size_t number = PlaceFor(row);
    for (const Row& other : rows_) row.turn = std::max(row.turn, other.turn);
    ++row.turn;
    row.pixelSum = SumOf(pixels);
    // Pixels first: where the row does not follow them, the one that is there tells that they are
    // another's.
    rows_[number] = {};
    if (file_.WriteAt(PlaceOfPixels(number), pixels) &&
        file_.WriteAt(PlaceOfRow(number), BytesOf(row)))
        rows_[number] = row;
}

}  // namespace vistrel::thumbnails
