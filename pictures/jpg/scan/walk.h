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

/// Calls `Reader::Restart()` at each beginning and restart, `bits = Reader::ReadBlock(bits, part,
/// column, row)` for each block of a scan in the file's order and `Reader::EndMcuRow()` at the
/// end of each row of MCUs. MCUs that the file lacks are skipped in silence.
template <class Reader>
ScanOutcome WalkScan(const pictures::PictureFile& file, const JpgFrame& frame, const JpgScan& scan,
                     int restartInterval, Reader& reader) {
    const ScanMcus mcus(frame, scan);
    ScanBytes bytes(file, scan.dataStart);
    BitReader bits = bytes.Reader();
    ScanOutcome outcome;
    outcome.mcus = static_cast<std::int64_t>(mcus.across) * mcus.down;
    reader.Restart();
    int untilRestart = restartInterval, restarts = 0;
    for (int row = 0; row < mcus.down; ++row) {
        for (int column = 0; column < mcus.across; ++column) {
            if (restartInterval > 0 && untilRestart-- == 0) {
                bytes.Restart(restarts++ & 7);
                bits = bytes.Reader();
                reader.Restart();
                untilRestart = restartInterval - 1;
            }
            if (bytes.IsOverrun(bits)) continue;
            ++outcome.mcusRead;
            for (std::size_t part = 0; part < scan.parts.size(); ++part) {
                const JpgComponent& component =
                    frame.components[static_cast<std::size_t>(scan.parts[part].component)];
                const int wide = mcus.interleaved ? component.across : 1;
                const int high = mcus.interleaved ? component.down : 1;
                for (int y = 0; y < high; ++y) {
                    for (int x = 0; x < wide; ++x) {
                        if (bytes.NeedsMore(bits)) bits = bytes.More(bits);
                        bits = reader.ReadBlock(bits, part, column * wide + x, row * high + y);
                    }
                }
            }
        }
        reader.EndMcuRow();
    }
    outcome.end = bytes.FindEnd();
    return outcome;
}

}  // namespace vistrel::jpg
