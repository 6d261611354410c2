// Any bytes as the file that keeps small pictures: whatever it held, a picture that is kept in it
// is found again, and what is found has its size.
#include "tests/pictures/fuzz/harmless.h"
#include "tests/pictures/fuzz/memory_folder.h"
#include "thumbnails/cache.h"

using namespace vistrel;
using namespace vistrel::fuzz;
using namespace vistrel::thumbnails;

namespace {

constexpr std::uint32_t kMost = 3;

pictures::RgbPicture PictureOf(std::uint8_t shade) {
    pictures::RgbPicture picture{kKeptWidth, kKeptHeight, {}};
    // What five and six bits lose nothing of.
    picture.pixels.assign(std::size_t{3} * kKeptWidth * kKeptHeight, shade ? 255 : 0);
    return picture;
}

Source SourceOf(int number) { return {"C:\\Logos\\" + std::to_string(number), 7, 129078}; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const MemoryFolder folder;
    const std::string path = folder.File("cache");
    Write(path, data, size);
    {
        Cache cache(path, kMost);
        for (int i = 0; i < 5; ++i)
            if (const auto found = cache.Find(SourceOf(i))) Demand(*found);
        cache.Keep(SourceOf(1), PictureOf(1));
        cache.Keep(SourceOf(2), PictureOf(0));
    }
    Cache again(path, kMost);
    const auto one = again.Find(SourceOf(1)), two = again.Find(SourceOf(2));
    if (!one || one->pixels != PictureOf(1).pixels) std::abort();
    if (!two || two->pixels != PictureOf(0).pixels) std::abort();
    return 0;
}
