// The loops for a processor with MMX.
#if defined(__i386__)
#pragma GCC target("mmx")
#endif
#if defined(__i386__) || defined(__x86_64__)

#include "pictures/loops/error_loops.h"
#include "pictures/loops/four.h"
#include "pictures/loops/kinds.h"
#include "pictures/loops/vector_choice.h"
#include "pictures/loops/vector_scale.h"

namespace vistrel::loops::mmx {

const Loops kLoops = {MoveErrors<Four>,
                      BlurAlong<Four>,
                      BlurDown<Four>,
                      ChooseByVectors<Four>,
                      MixByVectors<Four, std::uint8_t>,
                      MixByVectors<Four, std::int16_t>,
                      WeighAlongByVectors<Four>};

}  // namespace vistrel::loops::mmx

#endif
