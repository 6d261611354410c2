// A program that a test has started beside itself.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

namespace vistrel::test {

/// Nothing runs, or a program whose end can be waited for; the program goes on when this object
/// ends.
class StartedProgram {
 public:
    StartedProgram() = default;
    explicit StartedProgram(const std::string& commandLine);
    StartedProgram(StartedProgram&& other) noexcept
        : handle_(std::exchange(other.handle_, nullptr)), id_(other.id_) {}
    StartedProgram& operator=(StartedProgram other) noexcept {
        std::swap(handle_, other.handle_);
        std::swap(id_, other.id_);
        return *this;
    }
    ~StartedProgram();

    /// False when it could not be started.
    explicit operator bool() const { return handle_ != nullptr; }
    DWORD id() const { return id_; }
    /// Its exit status; nothing when it has not ended by then.
    std::optional<DWORD> WaitForEnd(DWORD milliseconds = 60000) const;
    /// Ends it whatever it is doing.
    void Terminate() const;

 private:
    HANDLE handle_ = nullptr;
    DWORD id_ = 0;
};

}  // namespace vistrel::test
