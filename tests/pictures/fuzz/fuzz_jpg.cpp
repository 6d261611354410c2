// Any bytes as a JPEG file, read whole.
#include "pictures/jpg/reader.h"
#include "tests/pictures/fuzz/harmless.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto picture = vistrel::jpg::ReadJpg(vistrel::pictures::FileBytes(data, size));
    if (picture) vistrel::fuzz::Demand(*picture);
    return 0;
}
