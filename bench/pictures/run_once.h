// A step by itself, for a program that counts instructions.
#pragma once

#include <functional>

namespace vistrel::bench {

/// Not inlined: valgrind counts between its call and its return.
[[gnu::noinline]] inline void RunOnce(const std::function<void()>& step) { step(); }

}  // namespace vistrel::bench
