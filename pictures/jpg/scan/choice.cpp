// Looks ahead through the headers of a progressive file.
#include "pictures/jpg/scan/choice.h"

#include "pictures/jpg/markers.h"

namespace vistrel::jpg {
namespace {

// Each scan brings one bit at least of one of the 64 coefficients of a component, of which the
// lowest 14 may come by themselves. No file needs more scans.
std::size_t MostScans(std::size_t components) { return components * kBlockSize * 14; }

}  // namespace

std::vector<bool> ChooseScans(const pictures::PictureFile& file,
                              std::span<const KeptFrequencies> kept) {
    std::vector<JpgScan> scans;
    JpgMarkers markers(file);
    while (scans.size() < MostScans(kept.size()) && markers.NextScan()) {
        scans.push_back(markers.scan());
    }

    std::vector<std::uint64_t> needed;  // by component, a bit per position in the file's order
    for (const KeptFrequencies& each : kept) needed.push_back(each.Positions());
    std::vector<bool> chosen(scans.size());
    for (std::size_t i = scans.size(); i-- > 0;) {
        const JpgScan& scan = scans[i];
        const std::uint64_t band = PositionBand(scan.first, scan.last);
        for (const JpgScanPart& part : scan.parts) {
            std::uint64_t& wanted = needed[static_cast<std::size_t>(part.component)];
            if ((wanted & band) == 0) continue;
            chosen[i] = true;
            if (scan.IsRefinement()) wanted |= band;
        }
    }
    return chosen;
}

}  // namespace vistrel::jpg
