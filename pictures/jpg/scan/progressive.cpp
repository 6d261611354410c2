// Decodes the scans of progressive files (ITU-T T.81, annex G).
#include "pictures/jpg/scan/progressive.h"

#include <algorithm>
#include <bit>

namespace vistrel::jpg {
namespace {

// Constant terms, first the upper bits of all.
class DcFirstReader {
 public:
    DcFirstReader(const JpgScan& scan, const JpgTables& tables,
                  std::span<ProgressiveComponent> components)
        : scan_(scan), components_(components) {
        for (const JpgScanPart& part : scan.parts)
            codes_.push_back(tables.dc[static_cast<std::size_t>(part.dcTable)]);
    }

    void Restart() { predictions_ = {}; }

    BitReader ReadBlock(BitReader bits, std::size_t index, int column, int row) {
        const JpgScanPart& part = scan_.parts[index];
        bits.Refill();
        const int size = codes_[index].Symbol(bits);
        if (size > 0) {
            bits.Refill();
            predictions_[index] =
                static_cast<std::int16_t>(predictions_[index] + ExtendSign(bits.Take(size), size));
        }
        *components_[static_cast<std::size_t>(part.component)].Block(column, row) =
            static_cast<std::int16_t>(predictions_[index] * (1 << scan_.low));
        return bits;
    }

 private:
    const JpgScan scan_;
    std::vector<HuffmanTable> codes_;  // of each part
    std::span<ProgressiveComponent> components_;
    std::array<std::int16_t, 4> predictions_ = {};
};

// Constant terms, one further bit of each.
class DcRefinementReader {
 public:
    DcRefinementReader(const JpgScan& scan, std::span<ProgressiveComponent> components)
        : scan_(scan), components_(components) {}

    void Restart() {}

    BitReader ReadBlock(BitReader bits, std::size_t index, int column, int row) {
        if (bits.count < 1) bits.Refill();
        const std::size_t component = static_cast<std::size_t>(scan_.parts[index].component);
        std::int16_t& constant = *components_[component].Block(column, row);
        constant = static_cast<std::int16_t>(constant | bits.Take(1) << scan_.low);
        return bits;
    }

 private:
    const JpgScan scan_;
    std::span<ProgressiveComponent> components_;
};

// What both kinds of scan with other coefficients share: one component, and runs of blocks that
// have nothing more to read.
class AcReader {
 public:
    AcReader(const JpgScan& scan, const JpgTables& tables, ProgressiveComponent& component)
        : first_(scan.first),
          last_(scan.last),
          unit_(1 << scan.low),
          table_(tables.ac[static_cast<std::size_t>(scan.parts[0].acTable)]),
          component_(component) {}

    void Restart() { endedBlocks_ = 0; }

 protected:
    // The number of blocks, this one included, that a symbol with run `run` (0 to 14) ends.
    static int ReadEndedBlocks(BitReader& bits, int run) {
        if (run == 0) return 1;
        bits.Refill();
        return (1 << run) + static_cast<int>(bits.Take(run));
    }

    const int first_;
    const int last_;
    const int unit_;  // what the scan's lowest bit is worth
    const HuffmanTable table_;
    ProgressiveComponent& component_;
    int endedBlocks_ = 0;
};

// Other coefficients, first their upper bits.
class AcFirstReader : public AcReader {
 public:
    using AcReader::AcReader;

    BitReader ReadBlock(BitReader bits, std::size_t, int column, int row) {
        if (endedBlocks_ > 0) {
            --endedBlocks_;
            return bits;
        }
        const KeptFrequencies& kept = component_.kept;
        std::int16_t* block = component_.Block(column, row);
        std::uint64_t found = 0;
        int k = first_;
        while (k <= last_) {
            bits.Refill();
            int value;
            const QuickEntry entry = table_.Quick(bits.Peek(HuffmanTable::kQuickBits));
            if (entry.value) {
                bits.Skip(entry.bits);
                k += entry.advance;
                value = entry.value;
            } else {
                const int symbol = table_.Symbol(bits);
                const int run = symbol >> 4, size = symbol & 15;
                if (size == 0 && run != 15) {
                    endedBlocks_ = ReadEndedBlocks(bits, run) - 1;
                    break;
                }
                k += run + 1;
                if (size == 0) continue;
                bits.Refill();
                value = ExtendSign(bits.Take(size), size);
            }
            if (k > kBlockSize) break;
            block[kept.slot[static_cast<std::size_t>(k - 1)]] =
                static_cast<std::int16_t>(value * unit_);
            found |= std::uint64_t{1} << (k - 1);
        }
        component_.NonZero(column, row) |= found;
        return bits;
    }
};

// Other coefficients, one further bit of each: a correction of those that are not zero yet, and new
// ones between them.
class AcRefinementReader : public AcReader {
 public:
    AcRefinementReader(const JpgScan& scan, const JpgTables& tables,
                       ProgressiveComponent& component)
        : AcReader(scan, tables, component), kept_(component.kept.Positions()) {}

    BitReader ReadBlock(BitReader bits, std::size_t, int column, int row) {
        std::int16_t* block = component_.Block(column, row);
        std::uint64_t& nonZero = component_.NonZero(column, row);
        const std::uint64_t old = nonZero;
        int k = first_;
        while (endedBlocks_ == 0 && k <= last_) {
            bits.Refill();
            int run, value = 0;
            const QuickEntry entry = table_.Quick(bits.Peek(HuffmanTable::kQuickBits));
            if (entry.value == 1 || entry.value == -1) {
                bits.Skip(entry.bits);
                run = entry.advance - 1;
                value = entry.value * unit_;
            } else {
                const int symbol = table_.Symbol(bits);
                run = symbol >> 4;
                if ((symbol & 15) != 0) {
                    value = bits.Take(1) ? unit_ : -unit_;
                } else if (run != 15) {
                    endedBlocks_ = ReadEndedBlocks(bits, run);
                    break;
                }
            }
            int at = k + run;
            if ((old >> k & ((std::uint64_t{2} << run) - 1)) != 0) {
                at = PositionBehind(old, k, run);
                if (at > k) bits = Correct(bits, old & PositionBand(k, at - 1), block);
            }
            if (at <= last_ && value != 0) {
                block[component_.kept.slot[static_cast<std::size_t>(at)]] =
                    static_cast<std::int16_t>(value);
                nonZero |= std::uint64_t{1} << at;
            }
            k = at + 1;
        }
        if (endedBlocks_ > 0) {
            --endedBlocks_;
            if (k <= last_) bits = Correct(bits, old & PositionBand(k, last_), block);
        }
        return bits;
    }

 private:
    // The position of the zero coefficient that comes behind `run` others from `k` on, last_ + 1
    // when there are too few.
    int PositionBehind(std::uint64_t nonZero, int k, int run) const {
        std::uint64_t zeros = ~nonZero & PositionBand(k, last_);
        for (; run > 0 && zeros != 0; --run) zeros &= zeros - 1;
        return zeros == 0 ? last_ + 1 : std::countr_zero(zeros);
    }

    // Reads a bit for each of the coefficients in `set` and grows those that are kept by it.
    BitReader Correct(BitReader bits, std::uint64_t set, std::int16_t* block) const {
        for (std::uint64_t wanted = set & kept_; wanted != 0; wanted &= wanted - 1) {
            if (bits.count < 1) bits.Refill();
            if (!bits.Take(1)) continue;
            const std::size_t k = static_cast<std::size_t>(std::countr_zero(wanted));
            std::int16_t& number = block[component_.kept.slot[k]];
            number = static_cast<std::int16_t>(number + (number < 0 ? -unit_ : unit_));
        }
        for (int needless = std::popcount(set & ~kept_); needless > 0; needless -= 16) {
            bits.Refill();
            bits.Skip(needless < 16 ? needless : 16);
        }
        return bits;
    }

    const std::uint64_t kept_;
};

template <class Reader>
class ScanByReader : public ProgressiveScan {
 public:
    ScanByReader(const pictures::PictureFile& file, const JpgFrame& frame, const JpgScan& scan,
                 int restartInterval, int rowsAtOnce, const Reader& reader)
        : walk_(file, frame, scan, restartInterval), rowsAtOnce_(rowsAtOnce), reader_(reader) {}

    void ReadNext() override {
        for (int i = 0; i < rowsAtOnce_ && !walk_.IsAtEnd(); ++i) walk_.ReadRow(reader_);
    }
    bool IsAtEnd() const override { return walk_.IsAtEnd(); }
    ScanOutcome Outcome() override { return walk_.Outcome(); }

 private:
    ScanWalk walk_;
    const int rowsAtOnce_;  // of the scan's own MCUs
    Reader reader_;
};

}  // namespace

ProgressiveComponent::ProgressiveComponent(const JpgComponent& component,
                                           const KeptFrequencies& keptFrequencies)
    : kept(keptFrequencies),
      rows(component.down),
      blocks(component.paddedAcross, rows, keptFrequencies.stride),
      nonZero(static_cast<std::size_t>(component.paddedAcross) * static_cast<std::size_t>(rows)) {}

void ProgressiveComponent::Clear() {
    std::fill(blocks.numbers.begin(), blocks.numbers.end(), std::int16_t{0});
    std::fill(nonZero.begin(), nonZero.end(), std::uint64_t{0});
}

std::unique_ptr<ProgressiveScan> OpenProgressiveScan(const pictures::PictureFile& file,
                                                     const JpgFrame& frame, const JpgScan& scan,
                                                     const JpgTables& tables,
                                                     std::span<ProgressiveComponent> components) {
    const auto first = static_cast<std::size_t>(scan.parts[0].component);
    const int rowsAtOnce = scan.parts.size() > 1 ? 1 : frame.components[first].down;
    const auto open = [&]<class Reader>(const Reader& reader) -> std::unique_ptr<ProgressiveScan> {
        return std::make_unique<ScanByReader<Reader>>(file, frame, scan, tables.restartInterval,
                                                      rowsAtOnce, reader);
    };
    if (scan.IsDc()) {
        if (scan.IsRefinement()) return open(DcRefinementReader(scan, components));
        return open(DcFirstReader(scan, tables, components));
    }
    if (scan.IsRefinement()) return open(AcRefinementReader(scan, tables, components[first]));
    return open(AcFirstReader(scan, tables, components[first]));
}

}  // namespace vistrel::jpg
