// The loops for a processor with SSE2.
#if defined(__i386__)
#pragma GCC target("sse2")
#endif
#if defined(__i386__) || defined(__x86_64__)

#include "pictures/loops/eight.h"
#include "pictures/loops/error_loops.h"
#include "pictures/loops/kinds.h"
#include "pictures/loops/vector_choice.h"
#include "pictures/loops/vector_scale.h"

namespace vistrel::loops::sse2 {

const Loops kLoops = {MoveErrors<Eight>,
                      BlurAlong<Eight>,
                      BlurDown<Eight>,
                      ChooseByVectors<Eight>,
                      MixByVectors<Eight, std::uint8_t>,
                      MixByVectors<Eight, std::int16_t>,
                      WeighAlongByVectors<Eight>};

}  // namespace vistrel::loops::sse2

#endif
