// Any bytes as a GIF file.
#include "pictures/gif/reader.h"
#include "tests/pictures/fuzz/harmless.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto picture = vistrel::gif::ReadGif(vistrel::pictures::FileBytes(data, size));
    if (picture) vistrel::fuzz::Demand(*picture);
    return 0;
}
