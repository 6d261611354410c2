// Reads scan after scan, within bounds that a sound file never meets.
#include "pictures/jpg/decoder.h"

#include <algorithm>

#include "pictures/jpg/scan/choice.h"
#include "pictures/jpg/scan/progressive.h"
#include "pictures/jpg/scan/sequential.h"

namespace vistrel::jpg {
namespace {

// A picture is shown when this part of it is there.
constexpr std::int64_t kLeastPart = 10;

// Scans of a few bytes can ask for work on the whole picture, time and again. Sound files have some
// ten scans, of which a component takes part in about six.
constexpr std::int64_t kMostVisits = 32;

// Each takes some memory while it is read beside the others.
constexpr std::size_t kMostScans = 256;

bool IsEnough(const ScanOutcome& outcome) { return outcome.mcusRead * kLeastPart >= outcome.mcus; }

bool HasFirstComponent(const JpgScan& scan) {
    for (const JpgScanPart& part : scan.parts) {
        if (part.component == 0) return true;
    }
    return false;
}

// Every block takes a bit of the file at least, so that a short file cannot have a large picture.
bool CanHoldEnough(const pictures::PictureFile& file, const JpgFrame& frame) {
    std::int64_t blocks = 0;
    for (const JpgComponent& component : frame.components) {
        blocks += static_cast<std::int64_t>(component.blocksAcross) * component.blocksDown;
    }
    return static_cast<std::int64_t>(file.size()) * 8 * kLeastPart >= blocks;
}

bool ReadSequential(const pictures::PictureFile& file, JpgMarkers& markers,
                    std::span<const KeptFrequencies> kept, BlockRowSink& sink) {
    const JpgFrame& frame = markers.frame();
    std::vector<bool> taken(frame.components.size());
    std::size_t left = taken.size();
    bool isEnough = false;
    do {
        const JpgScan& scan = markers.scan();
        bool isNew = true;
        for (const JpgScanPart& part : scan.parts) {
            isNew = isNew && !taken[static_cast<std::size_t>(part.component)];
        }
        if (!isNew) continue;
        if (!markers.BuildTables()) break;
        for (const JpgScanPart& part : scan.parts) {
            taken[static_cast<std::size_t>(part.component)] = true;
        }
        left -= scan.parts.size();
        const ScanOutcome outcome =
            ReadSequentialScan(file, frame, scan, markers.tables(), kept, sink);
        if (HasFirstComponent(scan)) isEnough = IsEnough(outcome);
        if (HasFirstComponent(scan) && !isEnough) return false;
        markers.ContinueAt(outcome.end);
    } while (left > 0 && markers.NextScan());
    for (std::size_t i = 0; i < taken.size(); ++i) {
        if (taken[i]) continue;
        const JpgComponent& component = frame.components[i];
        BlockRows zeros(component.paddedAcross, 1, kept[i].stride);
        for (int row = 0; row < component.blocksDown; ++row) {
            sink.AddBlockRow(static_cast<int>(i), row, zeros.Block(0, 0));
        }
    }
    return isEnough;
}

struct OpenedScan {
    std::unique_ptr<ProgressiveScan> reading;
    bool tellsWhatIsThere;  // as the constant terms of the first component do
};

// Opens the scans that are needed of the picture, from the one on at which `markers` stands.
std::vector<OpenedScan> OpenScans(const pictures::PictureFile& file, JpgMarkers& markers,
                                  std::span<const KeptFrequencies> kept,
                                  std::span<ProgressiveComponent> components) {
    const JpgFrame& frame = markers.frame();
    std::int64_t visitsLeft = static_cast<std::int64_t>(file.size()) * kMostVisits;
    for (const JpgComponent& component : frame.components)
        visitsLeft += BlocksOf(component) * kMostVisits;
    const std::vector<bool> chosen = ChooseScans(file, kept);
    std::vector<OpenedScan> scans;
    std::size_t number = 0;
    do {
        const JpgScan& scan = markers.scan();
        if (!chosen[number++]) continue;
        if (!markers.BuildTables()) break;
        for (const JpgScanPart& part : scan.parts) {
            visitsLeft -= BlocksOf(frame.components[static_cast<std::size_t>(part.component)]);
        }
        if (visitsLeft < 0) break;
        scans.push_back({OpenProgressiveScan(file, frame, scan, markers.tables(), components),
                         scan.IsDc() && HasFirstComponent(scan)});
        markers.PassOverScan();
    } while (number < chosen.size() && scans.size() < kMostScans && markers.NextScan());
    return scans;
}

bool ReadProgressive(const pictures::PictureFile& file, JpgMarkers& markers,
                     std::span<const KeptFrequencies> kept, BlockRowSink& sink) {
    const JpgFrame& frame = markers.frame();
    std::vector<ProgressiveComponent> components;
    for (std::size_t i = 0; i < frame.components.size(); ++i)
        components.emplace_back(frame.components[i], kept[i]);
    const std::vector<OpenedScan> scans = OpenScans(file, markers, kept, components);
    for (int mcuRow = 0; mcuRow < frame.mcusDown; ++mcuRow) {
        for (ProgressiveComponent& component : components) component.Clear();
        for (const OpenedScan& scan : scans) scan.reading->ReadNext();
        for (std::size_t i = 0; i < components.size(); ++i) {
            const JpgComponent& component = frame.components[i];
            const int end = std::min((mcuRow + 1) * component.down, component.blocksDown);
            for (int row = mcuRow * component.down; row < end; ++row)
                sink.AddBlockRow(static_cast<int>(i), row, components[i].Block(0, row));
        }
    }
    return std::any_of(scans.begin(), scans.end(), [](const OpenedScan& scan) {
        return scan.tellsWhatIsThere && IsEnough(scan.reading->Outcome());
    });
}

/// The upper tenth of a frame's rows, or a little more.
JpgFrame UpperTenth(JpgFrame frame) {
    const auto tenth = [](int rows) {
        return static_cast<int>((rows + kLeastPart - 1) / kLeastPart);
    };
    frame.mcusDown = tenth(frame.mcusDown);
    for (JpgComponent& component : frame.components) {
        component.blocksDown = tenth(component.blocksDown);
        component.paddedDown = frame.mcusDown * component.down;
    }
    return frame;
}

/// True when what makes a picture enough is there in the upper tenth already, as in all sound files
/// whose first scan is the first component's.
bool BeginsWithEnough(const pictures::PictureFile& file, std::span<const KeptFrequencies> means,
                      BlockRowSink& sink) {
    JpgMarkers markers(file);
    if (!markers.NextScan() || !HasFirstComponent(markers.scan()) || !markers.scan().IsDc() ||
        !markers.BuildTables()) {
        return false;
    }
    const JpgScan& scan = markers.scan();
    const JpgFrame upper = UpperTenth(markers.frame());
    ScanOutcome outcome;
    if (upper.progressive) {
        std::vector<ProgressiveComponent> components;
        for (std::size_t i = 0; i < means.size(); ++i) {
            components.emplace_back(upper.components[i], means[i]);
        }
        const auto reading = OpenProgressiveScan(file, upper, scan, markers.tables(), components);
        while (!reading->IsAtEnd()) reading->ReadNext();
        outcome = reading->Outcome();
    } else {
        outcome = ReadSequentialScan(file, upper, scan, markers.tables(), means, sink);
    }
    return outcome.mcusRead == outcome.mcus;
}

}  // namespace

bool HasEnough(const pictures::PictureFile& file) {
    struct PassOver : BlockRowSink {
        void AddBlockRow(int, int, const std::int16_t*) override {}
    } passOver;
    JpgMarkers markers(file);
    if (!markers.NextScan()) return false;
    const std::vector<KeptFrequencies> means(markers.frame().components.size(),
                                             KeptFrequencies::Of(1, 1));
    return BeginsWithEnough(file, means, passOver) ||
           ReadCoefficients(file, markers, means, passOver);
}

bool ReadCoefficients(const pictures::PictureFile& file, JpgMarkers& markers,
                      std::span<const KeptFrequencies> kept, BlockRowSink& sink) {
    if (!CanHoldEnough(file, markers.frame())) return false;
    return markers.frame().progressive ? ReadProgressive(file, markers, kept, sink)
                                       : ReadSequential(file, markers, kept, sink);
}

}  // namespace vistrel::jpg
