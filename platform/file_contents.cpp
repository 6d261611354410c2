#include "platform/file_contents.h"

#include <windows.h>

#include <cstring>
#include <vector>

#include "platform/fault.h"
#include "platform/system_error.h"

namespace vistrel::platform {

namespace {

class OpenFileHandle {
 public:
    OpenFileHandle(const std::string& path, DWORD access)
        : handle_(CreateFileA(path.c_str(), access, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                              nullptr)) {}
    ~OpenFileHandle() {
        if (IsOpen()) CloseHandle(handle_);
    }
    OpenFileHandle(const OpenFileHandle&) = delete;
    OpenFileHandle& operator=(const OpenFileHandle&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

 private:
    HANDLE handle_;
};

/// Reads the next bytes, fewer only at the file's end. False when reading failed.
bool ReadBlock(const OpenFileHandle& file, std::vector<char>& block, DWORD& got) {
    return ReadFile(file.Get(), block.data(), static_cast<DWORD>(block.size()), &got, nullptr) != 0;
}

}  // namespace

bool FlushToDisk(const std::string& path, Error* error) {
    if (fault::ShouldFail()) return Failed(error, kInjectedError);
    const OpenFileHandle file(path, GENERIC_WRITE);
    if (!file.IsOpen()) return Failed(error, GetLastError());
    return Report(FlushFileBuffers(file.Get()), error);
}

bool SameContents(const std::string& path, const std::string& other) {
    if (fault::ShouldFail()) return false;
    const OpenFileHandle first(path, GENERIC_READ);
    const OpenFileHandle second(other, GENERIC_READ);
    if (!first.IsOpen() || !second.IsOpen()) return false;
    std::vector<char> firstBlock(32 * 1024);
    std::vector<char> secondBlock(firstBlock.size());
    for (;;) {
        DWORD firstGot = 0;
        DWORD secondGot = 0;
        if (!ReadBlock(first, firstBlock, firstGot) || !ReadBlock(second, secondBlock, secondGot))
            return false;
        if (firstGot != secondGot || std::memcmp(firstBlock.data(), secondBlock.data(), firstGot))
            return false;
        if (firstGot == 0) return true;
    }
}

}  // namespace vistrel::platform
