// Tests by each kind of innermost loops.
#pragma once

#include <gtest/gtest.h>

#include "pictures/loops/loops.h"

namespace vistrel::test {

inline const auto kAllLoops =
    testing::Values(loops::Kind::Singles, loops::Kind::Mmx, loops::Kind::Sse2);

inline const auto NameOfLoops = [](const testing::TestParamInfo<loops::Kind>& info) {
    switch (info.param) {
        case loops::Kind::Singles:
            return "OfSingles";
        case loops::Kind::Mmx:
            return "OfMmx";
        case loops::Kind::Sse2:
            return "OfSse2";
    }
    return "";
};

}  // namespace vistrel::test
