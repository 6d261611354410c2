// What nearly every source of a Windows program reads before its own lines, in the system's headers
// and the library's: compiled once, the rest takes two thirds of the time. Each source includes
// what it uses all the same: what ships is compiled without this.
#pragma once

#include "cmake/library_threads.h"
// The library's own headers come behind these.
#include <windows.h>
// It needs windows.h first.
#include <commctrl.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
