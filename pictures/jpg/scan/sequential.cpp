// Decodes the blocks of sequential scans (ITU-T T.81, F.2.2).
#include "pictures/jpg/scan/sequential.h"

#include <algorithm>

namespace vistrel::jpg {
namespace {

// One component's part of the scan.
struct Part {
    int component;
    int blocksDown;  // rows of blocks that the component has
    int rowsPerMcu;
    const KeptFrequencies* kept;
    const HuffmanTable* dc;
    const HuffmanTable* ac;
    BlockRows rows;    // of one row of MCUs
    int firstRow = 0;  // row of blocks in the picture that is first in `rows`
    std::int16_t prediction = 0;
};

// The difference of a block's constant term from the one before it.
int ReadDifference(BitReader& bits, const HuffmanTable& table) {
    bits.Ensure(HuffmanTable::kMostSymbolBits);
    const QuickEntry entry = table.Quick(bits.Peek(HuffmanTable::kQuickBits));
    if (entry.bits) {
        bits.Skip(entry.bits);
        return entry.value;
    }
    const int size = table.Symbol(bits);
    if (size == 0) return 0;
    bits.Ensure(16);
    return ExtendSign(bits.Take(size), size);
}

// Reads coefficients from position 1 to `kept.last`. Gives the position reached, kBlockSize or more
// when the block has ended.
int ReadNeeded(BitReader& bits, const HuffmanTable& table, const KeptFrequencies& kept,
               std::int16_t* block) {
    int k = 1;
    while (k <= kept.last) {
        bits.Ensure(HuffmanTable::kMostSymbolBits);
        const QuickEntry entry = table.Quick(bits.Peek(HuffmanTable::kQuickBits));
        if (entry.bits) {
            bits.Skip(entry.bits);
            k += entry.advance;
            if (entry.value) block[kept.slot[static_cast<std::size_t>(k - 1)]] = entry.value;
            continue;
        }
        const int symbol = table.Symbol(bits);
        const int run = symbol >> 4, size = symbol & 15;
        if (size == 0 && run != 15) return kBlockEnd;
        k += run + 1;
        if (size == 0) continue;
        bits.Ensure(16);
        block[kept.slot[static_cast<std::size_t>(k - 1)]] =
            static_cast<std::int16_t>(ExtendSign(bits.Take(size), size));
    }
    return k;
}

// Passes over the coefficients from position `k` on.
void SkipNeedless(BitReader& bits, const HuffmanTable& table, int k) {
    while (k < kBlockSize) {
        bits.Ensure(HuffmanTable::kMostSkipped);
        const SkipEntry entry = table.Skipping(bits.Peek(HuffmanTable::kSkipBits));
        const int reached = k + entry.advance;
        // A full block has no code for its end: what seems to lie beyond belongs to the next one.
        const bool staysWithin =
            reached <= kBlockSize || (reached >= kBlockEnd && reached - kBlockEnd < kBlockSize);
        if (entry.bits && staysWithin) {
            bits.Skip(entry.bits);
            k = reached;
            continue;
        }
        const int symbol = table.Symbol(bits);
        const int run = symbol >> 4, size = symbol & 15;
        if (size == 0 && run != 15) return;
        k += run + 1;
        bits.Ensure(16);
        bits.Skip(size);
    }
}

class SequentialReader {
 public:
    SequentialReader(const JpgFrame& frame, const JpgScan& scan, JpgTables& tables,
                     std::span<const KeptFrequencies> kept, BlockRowSink& sink)
        : sink_(sink) {
        const bool interleaved = scan.parts.size() > 1;
        for (const JpgScanPart& part : scan.parts) {
            const std::size_t index = static_cast<std::size_t>(part.component);
            const JpgComponent& component = frame.components[index];
            HuffmanTable& ac = tables.ac[static_cast<std::size_t>(part.acTable)];
            if (kept[index].last < kBlockSize - 1) ac.PrepareSkipping();
            const int rows = interleaved ? component.down : 1;
            parts_.push_back({part.component, component.blocksDown, rows, &kept[index],
                              &tables.dc[static_cast<std::size_t>(part.dcTable)], &ac,
                              BlockRows(component.paddedAcross, rows, kept[index].stride)});
        }
    }

    void Restart() {
        for (Part& part : parts_) part.prediction = 0;
    }

    BitReader ReadBlock(BitReader bits, std::size_t index, int column, int row) {
        Part& part = parts_[index];
        std::int16_t* block = part.rows.Block(column, row - part.firstRow);
        part.prediction =
            static_cast<std::int16_t>(part.prediction + ReadDifference(bits, *part.dc));
        block[0] = part.prediction;
        const int reached = ReadNeeded(bits, *part.ac, *part.kept, block);
        SkipNeedless(bits, *part.ac, reached);
        return bits;
    }

    void EndMcuRow() {
        for (Part& part : parts_) {
            const int rows = std::min(part.rowsPerMcu, part.blocksDown - part.firstRow);
            for (int y = 0; y < rows; ++y) {
                sink_.AddBlockRow(part.component, part.firstRow + y, part.rows.Block(0, y));
            }
            part.firstRow += part.rowsPerMcu;
            std::fill(part.rows.numbers.begin(), part.rows.numbers.end(), std::int16_t{0});
        }
    }

 private:
    std::vector<Part> parts_;
    BlockRowSink& sink_;
};

}  // namespace

ScanOutcome ReadSequentialScan(const pictures::PictureFile& file, const JpgFrame& frame,
                               const JpgScan& scan, JpgTables& tables,
                               std::span<const KeptFrequencies> kept, BlockRowSink& sink) {
    SequentialReader reader(frame, scan, tables, kept, sink);
    ScanWalk walk(file, frame, scan, tables.restartInterval);
    while (!walk.IsAtEnd()) {
        walk.ReadRow(reader);
        reader.EndMcuRow();
    }
    return walk.Outcome();
}

}  // namespace vistrel::jpg
