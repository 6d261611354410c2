// What nearly every Windows test reads before its own lines, in GoogleTest, the system's headers
// and the library's: compiled once, tests take a third of the time. Each source includes what it
// uses all the same: where this cannot be used, it is not there.
#pragma once

#include "cmake/library_threads.h"
// The library's own headers come behind these.
#include <windows.h>
// These need windows.h first.
#include <commctrl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ole2.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
