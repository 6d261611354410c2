// memory-bench SOURCE TARGET: converts a picture to a screen file and prints what that took of the
// memory, in KB: of the whole process, of that what was there before, and of what was asked for by
// new. Of Linux, which knows the most that a process has had.
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "pictures/convert.h"

namespace {

std::size_t used = 0;
std::size_t mostUsed = 0;

long PeakOfProcess() {
    std::FILE* const status = std::fopen("/proc/self/status", "r");
    if (status == nullptr) return 0;
    long peak = 0;
    char line[128];
    while (std::fgets(line, sizeof line, status) != nullptr) {
        if (std::strncmp(line, "VmHWM:", 6) == 0) peak = std::atol(line + 6);
    }
    std::fclose(status);
    return peak;
}

}  // namespace

// Not inlined, since the compiler would take malloc and delete for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const block = std::malloc(size);
    if (block == nullptr) throw std::bad_alloc();
    used += malloc_usable_size(block);
    mostUsed = std::max(mostUsed, used);
    return block;
}

[[gnu::noinline]] void operator delete(void* block) noexcept {
    used -= malloc_usable_size(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

int main(int count, char** arguments) {
    if (count != 3) {
        std::fprintf(stderr, "usage: memory-bench SOURCE TARGET\n");
        return 2;
    }
    const long before = PeakOfProcess();
    mostUsed = used;
    const std::size_t usedBefore = used;
    using namespace vistrel::pictures;
    if (TryConvertToLogo(arguments[1], arguments[2]) != ConversionResult::Written) {
        std::fprintf(stderr, "memory-bench: %s cannot be converted\n", arguments[1]);
        return 1;
    }
    std::printf("%ld %ld %zu\n", PeakOfProcess(), before, (mostUsed - usedBefore) / 1024);
}
