// GoogleTest and its matchers for Windows, compiled from Debian's source package.
#include <gtest/gtest.h>

namespace testing {

/// Closes a handle at the end of its life. GoogleTest declares this class only together with its
/// threads, which need std::mutex: the compiler with Windows threads has none. Its newer versions
/// always have one, in the namespace `internal` inside this one, where they find it first.
class AutoHandle {
 public:
    AutoHandle() = default;
    explicit AutoHandle(void* handle) : handle_(handle) {}
    AutoHandle(const AutoHandle&) = delete;
    AutoHandle& operator=(const AutoHandle&) = delete;
    ~AutoHandle() { Reset(); }

    void* Get() const { return handle_; }
    void Reset(void* handle = nullptr);

 private:
    void* handle_ = nullptr;
};

}  // namespace testing

#include <src/gmock-all.cc>
#include <src/gtest-all.cc>

void testing::AutoHandle::Reset(void* handle) {
    if (handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    handle_ = handle;
}
