// How much memory unpacking takes, however much is unpacked.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "archive/zip_reader.h"

namespace {

std::size_t inUse = 0;
std::size_t mostInUse = 0;

constexpr std::size_t kBefore = alignof(std::max_align_t);

}  // namespace

void* operator new(std::size_t size) {
    auto* place = static_cast<std::size_t*>(std::malloc(size + kBefore));
    if (!place) throw std::bad_alloc();
    *place = size;
    inUse += size;
    mostInUse = std::max(mostInUse, inUse);
    return reinterpret_cast<char*>(place) + kBefore;
}
void operator delete(void* place) noexcept {
    if (!place) return;
    auto* begin = reinterpret_cast<std::size_t*>(static_cast<char*>(place) - kBefore);
    inUse -= *begin;
    std::free(begin);
}
void operator delete(void* place, std::size_t) noexcept { operator delete(place); }

namespace vistrel::test {
namespace {

/// Stored blocks of zeros, one behind the other, that are nowhere as a whole.
class EndlessBlocks : public pictures::ByteSource {
 public:
    static constexpr std::size_t kBlock = 5 + 65535;
    std::size_t size() const override { return kBlock * 300; }
    void Read(std::size_t at, std::span<std::uint8_t> to) override {
        for (std::size_t i = 0; i < to.size(); ++i) to[i] = ByteAt(at + i);
    }

 private:
    std::uint8_t ByteAt(std::size_t at) const {
        const std::size_t place = at % kBlock;
        if (place == 0) return at / kBlock == 299 ? 1 : 0;  // the last block says so
        return place == 1 || place == 2 ? 0xFF : 0;
    }
};

TEST(Unpacking, TakesLittleMemoryHoweverMuchIsUnpacked) {
    EndlessBlocks source;
    const pictures::PictureFile file(source);
    std::size_t unpacked = 0;
    const std::size_t before = inUse;
    mostInUse = inUse;
    const auto fault = archive::Inflate(file, 0, file.size(), [&](auto bytes) {
        unpacked += bytes.size();
        return true;
    });
    EXPECT_EQ(fault, archive::ArchiveFault::None);
    EXPECT_EQ(unpacked, std::size_t{300} * 65535);
    EXPECT_LT(mostInUse - before, 64u * 1024);
}

}  // namespace
}  // namespace vistrel::test
