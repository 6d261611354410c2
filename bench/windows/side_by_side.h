// Times our work and bare system calls in turn, in one run.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace vistrel::bench {

/// Milliseconds of a clock that only counts up.
inline double Now() {
    LARGE_INTEGER frequency;
    LARGE_INTEGER count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

/// Milliseconds that some work takes.
inline double TimeOf(const std::function<void()>& work) {
    const double begun = Now();
    work();
    return Now() - begun;
}

inline double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Runs both in turn, after one turn that does not count, and prints both medians and the
/// median of the ratios of each turn.
inline void Compare(const char* what, int rounds, const std::function<void()>& ours,
                    const std::function<void()>& bare) {
    std::vector<double> our;
    std::vector<double> bares;
    std::vector<double> ratios;
    for (int round = 0; round <= rounds; ++round) {
        const double a = TimeOf(ours);
        const double b = TimeOf(bare);
        if (round == 0) continue;
        our.push_back(a);
        bares.push_back(b);
        ratios.push_back(a / b);
    }
    std::printf("%-34s ours %8.2f ms   bare %8.2f ms   ratio %.2f\n", what, Median(our),
                Median(bares), Median(ratios));
    std::fflush(stdout);
}

}  // namespace vistrel::bench
