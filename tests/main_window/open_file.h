// A file that somebody else has open.
#pragma once

#include <windows.h>

#include <string>

namespace vistrel::test {

/// A file that nobody else can open as long as this lives.
class OpenFile {
 public:
    explicit OpenFile(const std::string& path)
        : file_(CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~OpenFile() { CloseHandle(file_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

 private:
    HANDLE file_;
};

}  // namespace vistrel::test
