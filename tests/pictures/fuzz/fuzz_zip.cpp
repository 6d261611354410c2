// Any bytes as a ZIP file whose entries are all unpacked: what comes is never more than an entry's
// size, and names lead nowhere.
#include <cstdlib>

#include "archive/zip_reader.h"

using namespace vistrel::archive;

namespace {

constexpr std::uint64_t kMostUnpacked = 4 * 1024 * 1024;

void Demand(bool sound) {
    if (!sound) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const vistrel::pictures::PictureFile file(vistrel::pictures::FileBytes(data, size));
    const Directory all = ReadDirectory(file, [](const std::string& name) { return name; });
    Demand(InWords(all.fault)[0] != 0 || all.fault == ArchiveFault::None);
    Demand(all.fault == ArchiveFault::None || all.entries.empty());
    std::uint64_t total = 0;
    for (const Entry& entry : all.entries) {
        Demand(IsSafeName(entry.name));
        std::uint64_t unpacked = 0;
        const ArchiveFault fault = Unpack(file, entry, [&](std::span<const std::uint8_t> bytes) {
            unpacked += bytes.size();
            total += bytes.size();
            return total < kMostUnpacked;
        });
        Demand(unpacked <= entry.size);
        Demand(fault != ArchiveFault::None || unpacked == entry.size);
        if (total >= kMostUnpacked) break;
    }
    return 0;
}
