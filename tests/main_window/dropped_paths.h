// The paths in a list of files, as drops and the clipboard have it.
#pragma once

#include <windows.h>
// shellapi.h needs windows.h first.
#include <shellapi.h>

#include <string>
#include <vector>

namespace vistrel::test {

inline std::vector<std::string> PathsOf(HDROP list) {
    std::vector<std::string> paths;
    const UINT count = DragQueryFileA(list, 0xffffffff, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        char path[MAX_PATH] = "";
        DragQueryFileA(list, i, path, sizeof path);
        paths.emplace_back(path);
    }
    return paths;
}

}  // namespace vistrel::test
