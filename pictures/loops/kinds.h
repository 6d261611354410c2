// The loops of each kind, compiled into files of their own.
#pragma once

#include "pictures/loops/loops.h"

namespace vistrel::loops {

namespace singles {
extern const Loops kLoops;
}
namespace mmx {
extern const Loops kLoops;
}
namespace sse2 {
extern const Loops kLoops;
}

}  // namespace vistrel::loops
