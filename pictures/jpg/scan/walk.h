// The order in which a scan holds its blocks, with the restarts between them.
#pragma once

#include <cstdint>

#include "pictures/jpg/entropy/bits.h"
#include "pictures/jpg/frame.h"

namespace vistrel::jpg {

/// How much of a scan was there.
struct ScanOutcome {
    std::int64_t mcusRead = 0;
    std::int64_t mcus = 0;
    std::size_t end = 0;  ///< where the file goes on with a marker
};

/// The minimum coded units (MCUs) of a scan: one block each where the scan has one component, else
/// all blocks of a part of the picture, sampling factors across and down of each component.
struct ScanMcus {
    int across = 0;
    int down = 0;
    bool interleaved = false;

    ScanMcus(const JpgFrame& frame, const JpgScan& scan) : interleaved(scan.parts.size() > 1) {
        const JpgComponent& only =
            frame.components[static_cast<std::size_t>(scan.parts[0].component)];
        across = interleaved ? frame.mcusAcross : only.blocksAcross;
        down = interleaved ? frame.mcusDown : only.blocksDown;
    }
};

/// Goes through the blocks of a scan, one row of MCUs after the other. MCUs that the file lacks are
/// skipped in silence.
class ScanWalk {
 public:
    /// `frame` must outlive this.
    ScanWalk(const pictures::PictureFile& file, const JpgFrame& frame, const JpgScan& scan,
             int restartInterval)
        : frame_(frame),
          scan_(scan),
          mcus_(frame, scan),
          restartInterval_(restartInterval),
          untilRestart_(restartInterval),
          bytes_(file, scan.dataStart),
          bits_(bytes_.Reader()) {}

    bool IsAtEnd() const { return row_ == mcus_.down; }

    /// Calls `bits = Reader::ReadBlock(bits, part, column, row)` for each block of the next row of
    /// MCUs in the file's order, and `Reader::Restart()` before the first one and at restarts.
    template <class Reader>
    void ReadRow(Reader& reader) {
        BitReader bits = bits_;
        if (row_ == 0) reader.Restart();
        for (int column = 0; column < mcus_.across; ++column) {
            if (restartInterval_ > 0 && untilRestart_-- == 0) {
                bytes_.Restart(restarts_++ & 7);
                bits = bytes_.Reader();
                reader.Restart();
                untilRestart_ = restartInterval_ - 1;
            }
            if (bytes_.IsOverrun(bits)) continue;
            ++mcusRead_;
            for (std::size_t part = 0; part < scan_.parts.size(); ++part) {
                const JpgComponent& component =
                    frame_.components[static_cast<std::size_t>(scan_.parts[part].component)];
                const int wide = mcus_.interleaved ? component.across : 1;
                const int high = mcus_.interleaved ? component.down : 1;
                for (int y = 0; y < high; ++y) {
                    for (int x = 0; x < wide; ++x) {
                        if (bytes_.NeedsMore(bits)) bits = bytes_.More(bits);
                        bits = reader.ReadBlock(bits, part, column * wide + x, row_ * high + y);
                    }
                }
            }
        }
        ++row_;
        bits_ = bits;
    }

    /// How much there was, once all rows have been read.
    ScanOutcome Outcome() {
        return {mcusRead_, std::int64_t{mcus_.across} * mcus_.down, bytes_.FindEnd()};
    }

 private:
    const JpgFrame& frame_;
    const JpgScan scan_;
    const ScanMcus mcus_;
    const int restartInterval_;
    int untilRestart_;
    int restarts_ = 0;
    int row_ = 0;
    std::int64_t mcusRead_ = 0;
    ScanBytes bytes_;
    BitReader bits_;
};

}  // namespace vistrel::jpg
