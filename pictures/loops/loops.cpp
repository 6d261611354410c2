// Which loops this machine runs.
#include "pictures/loops/loops.h"

#include "pictures/loops/kinds.h"
#include "platform/wide_registers.h"

#if defined(__i386__) || defined(__x86_64__)
#include <cpuid.h>
#endif

namespace vistrel::loops {
namespace {

#if defined(__i386__) || defined(__x86_64__)

bool ProcessorHas(unsigned bit) {
    unsigned a, b, c, features;
    return __get_cpuid(1, &a, &b, &c, &features) && (features & bit) != 0;
}

bool Has(Kind kind) {
    switch (kind) {
        case Kind::Singles:
            return true;
        case Kind::Mmx:
            return ProcessorHas(bit_MMX);
        case Kind::Sse2:
            return ProcessorHas(bit_SSE2) && platform::KeepsWideRegisters();
    }
    return false;
}

const Loops& Of(Kind kind) {
    switch (kind) {
        case Kind::Singles:
            return singles::kLoops;
        case Kind::Mmx:
            return mmx::kLoops;
        case Kind::Sse2:
            return sse2::kLoops;
    }
    return singles::kLoops;
}

#else

bool Has(Kind kind) { return kind == Kind::Singles; }
const Loops& Of(Kind) { return singles::kLoops; }

#endif

const Loops* Best() {
    for (const Kind kind : {Kind::Sse2, Kind::Mmx}) {
        if (Has(kind)) return &Of(kind);
    }
    return &Of(Kind::Singles);
}

const Loops*& ChosenLoops() {
    static const Loops* chosen = Best();
    return chosen;
}

}  // namespace

bool CanRun(Kind kind) { return Has(kind); }

const Loops& Chosen() { return *ChosenLoops(); }

void Force(Kind kind) { ChosenLoops() = &Of(kind); }

}  // namespace vistrel::loops
