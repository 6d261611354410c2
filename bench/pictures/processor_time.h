// Processor time, which tells the same on a busy machine as on a free one.
#pragma once

#include <ctime>

namespace vistrel::bench {

/// The processor time that this process has used, in milliseconds.
inline double ProcessorTime() {
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

}  // namespace vistrel::bench
