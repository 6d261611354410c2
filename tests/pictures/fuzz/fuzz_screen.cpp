// Any bytes as a screen file that is checked and mended: what is mended has no fault any more, and
// is not changed by mending it again.
#include <cstdlib>

#include "pictures/screen/check.h"
#include "pictures/screen/indexed_screen.h"
#include "pictures/screen/mend.h"

using namespace vistrel::screen;

namespace {

void Demand(bool sound) {
    if (!sound) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const vistrel::pictures::FileBytes file(data, size);
    const std::vector<ScreenFault> faults = FaultsOfScreen(file);
    for (const ScreenFault fault : faults) Demand(InWords(fault)[0] != 0);
    const auto mended = MendScreen(file);
    const bool readable = faults.empty() || faults[0] != ScreenFault::NotABitmap;
    Demand(mended.has_value() == readable);
    if (!mended) return 0;
    Demand(FaultsOfScreen(*mended).empty());
    Demand(MendScreen(*mended) == mended);
    const auto screen = ReadIndexedScreen(*mended);
    Demand(screen && screen->width == 320 && screen->height == 400);
    return 0;
}
