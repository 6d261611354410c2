// The baseline JPG file format: cosine transform, quantization and Huffman codes.
#include "art/files/jpg_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace vistrel::art {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Block = std::array<double, 64>;

struct Code {
    int value = 0;
    int bits = 0;
};

// The order in which a block's coefficients are written: from low frequencies to high ones along
// the diagonals, up and down in turn.
std::array<int, 64> ZigZag() {
    std::array<int, 64> order{};
    int at = 0;
    for (int sum = 0; sum < 15; ++sum) {
        for (int i = 0; i <= sum; ++i) {
            const int row = sum % 2 ? i : sum - i, column = sum - row;
            if (row < 8 && column < 8) order[at++] = row * 8 + column;
        }
    }
    return order;
}

const std::array<int, 64> kZigZag = ZigZag();

int Quantum(int index) { return 2 + index / 8 + index % 8; }

// Codes are dealt out in order of length, as the format has it. Lengths of our own choice: all
// differences 4 bits; the four commonest runs 4 bits and the other ones 8.
const Bytes kCommonRuns = {0x00, 0x01, 0x02, 0x11};

Bytes OtherRuns() {
    Bytes runs = {0xF0};
    for (int run = 0; run < 16; ++run) {
        for (int size = 1; size <= 10; ++size) {
            const std::uint8_t symbol = static_cast<std::uint8_t>(run << 4 | size);
            if (std::find(kCommonRuns.begin(), kCommonRuns.end(), symbol) == kCommonRuns.end()) {
                runs.push_back(symbol);
            }
        }
    }
    return runs;
}

Code RunCode(int symbol) {
    const auto common = std::find(kCommonRuns.begin(), kCommonRuns.end(), symbol);
    if (common != kCommonRuns.end()) return {int(common - kCommonRuns.begin()), 4};
    static const Bytes kOther = OtherRuns();
    const auto other = std::find(kOther.begin(), kOther.end(), symbol);
    return {int(kCommonRuns.size()) * 16 + int(other - kOther.begin()), 8};
}

// The coded picture: bits from the highest, with a zero byte after each byte of ones.
class BitWriter {
 public:
    explicit BitWriter(Bytes& out) : out_(out) {}
    void Put(Code code) {
        for (int bit = code.bits - 1; bit >= 0; --bit) {
            held_ = held_ << 1 | (code.value >> bit & 1);
            if (++count_ < 8) continue;
            out_.push_back(held_ & 255);
            if ((held_ & 255) == 255) out_.push_back(0);
            count_ = 0;
        }
    }
    void Finish() {
        while (count_ != 0) Put({1, 1});
    }

 private:
    Bytes& out_;
    int held_ = 0;
    int count_ = 0;
};

int SizeOf(int value) {
    int size = 0;
    for (int rest = std::abs(value); rest > 0; rest /= 2) ++size;
    return size;
}

// Negative numbers are written one less, cut to their size.
Code Amount(int value, int size) { return {value < 0 ? value + (1 << size) - 1 : value, size}; }

Block Transformed(const Block& samples) {
    static const std::array<double, 64> kCosines = [] {
        std::array<double, 64> table{};
        for (int u = 0; u < 8; ++u) {
            for (int x = 0; x < 8; ++x) {
                table[u * 8 + x] = std::cos((2 * x + 1) * u * 3.14159265358979 / 16) *
                                   (u == 0 ? std::sqrt(.125) : .5);
            }
        }
        return table;
    }();
    Block rows{}, result{};
    for (int y = 0; y < 8; ++y) {
        for (int u = 0; u < 8; ++u) {
            for (int x = 0; x < 8; ++x) rows[y * 8 + u] += samples[y * 8 + x] * kCosines[u * 8 + x];
        }
    }
    for (int v = 0; v < 8; ++v) {
        for (int u = 0; u < 8; ++u) {
            for (int y = 0; y < 8; ++y) result[v * 8 + u] += rows[y * 8 + u] * kCosines[v * 8 + y];
        }
    }
    return result;
}

void PutBlock(BitWriter& writer, const Block& samples, int& lastMean) {
    const Block coefficients = Transformed(samples);
    std::array<int, 64> values;
    for (int i = 0; i < 64; ++i) {
        values[i] = int(std::lround(coefficients[kZigZag[i]] / Quantum(kZigZag[i])));
    }
    const int difference = values[0] - lastMean, differenceSize = SizeOf(difference);
    lastMean = values[0];
    writer.Put({differenceSize, 4});
    writer.Put(Amount(difference, differenceSize));
    int run = 0;
    for (int i = 1; i < 64; ++i) {
        if (values[i] == 0) {
            ++run;
            continue;
        }
        for (; run > 15; run -= 16) writer.Put(RunCode(0xF0));
        const int size = SizeOf(values[i]);
        writer.Put(RunCode(run << 4 | size));
        writer.Put(Amount(values[i], size));
        run = 0;
    }
    if (run > 0) writer.Put(RunCode(0));
}

// Brightness or one of the two colour differences of the eight by eight pixels at x, y; beyond the
// picture its last pixels go on.
Block SamplesOf(const pictures::RgbPicture& picture, int x, int y, int component) {
    static const double kWeights[3][3] = {
        {.299, .587, .114}, {-.168736, -.331264, .5}, {.5, -.418688, -.081312}};
    Block block;
    for (int i = 0; i < 64; ++i) {
        const int column = std::min(x + i % 8, picture.width - 1),
                  row = std::min(y + i / 8, picture.height - 1);
        const std::uint8_t* pixel =
            &picture.pixels[(std::size_t(row) * picture.width + column) * 3];
        const double* w = kWeights[component];
        block[i] = pixel[0] * w[0] + pixel[1] * w[1] + pixel[2] * w[2] - (component == 0 ? 128 : 0);
    }
    return block;
}

void Put16(Bytes& out, int value) {
    out.push_back(value >> 8 & 255);
    out.push_back(value & 255);
}

void PutSegment(Bytes& out, int marker, const Bytes& content) {
    Put16(out, 0xFF00 | marker);
    Put16(out, static_cast<int>(content.size()) + 2);
    out.insert(out.end(), content.begin(), content.end());
}

void PutTables(Bytes& out) {
    Bytes quanta = {0};
    for (int index : kZigZag) quanta.push_back(static_cast<std::uint8_t>(Quantum(index)));
    PutSegment(out, 0xDB, quanta);
    Bytes differences(17);
    differences[4] = 12;
    for (std::uint8_t size = 0; size < 12; ++size) differences.push_back(size);
    PutSegment(out, 0xC4, differences);
    const Bytes other = OtherRuns();
    Bytes runs(17);
    runs[0] = 0x10;
    runs[4] = static_cast<std::uint8_t>(kCommonRuns.size());
    runs[8] = static_cast<std::uint8_t>(other.size());
    runs.insert(runs.end(), kCommonRuns.begin(), kCommonRuns.end());
    runs.insert(runs.end(), other.begin(), other.end());
    PutSegment(out, 0xC4, runs);
}

}  // namespace

std::vector<std::uint8_t> JpgFile(const pictures::RgbPicture& picture) {
    Bytes out = {0xFF, 0xD8};
    PutSegment(out, 0xE0, {'J', 'F', 'I', 'F', 0, 1, 1, 0, 0, 1, 0, 1, 0, 0});
    PutTables(out);
    Bytes frame = {8};
    Put16(frame, picture.height);
    Put16(frame, picture.width);
    frame.insert(frame.end(), {3, 1, 0x11, 0, 2, 0x11, 0, 3, 0x11, 0});
    PutSegment(out, 0xC0, frame);
    PutSegment(out, 0xDA, {3, 1, 0, 2, 0, 3, 0, 0, 63, 0});
    BitWriter writer(out);
    int lastMeans[3] = {};
    for (int y = 0; y < picture.height; y += 8) {
        for (int x = 0; x < picture.width; x += 8) {
            for (int component = 0; component < 3; ++component) {
                PutBlock(writer, SamplesOf(picture, x, y, component), lastMeans[component]);
            }
        }
    }
    writer.Finish();
    Put16(out, 0xFFD9);
    return out;
}

}  // namespace vistrel::art
