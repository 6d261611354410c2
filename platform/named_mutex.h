// What only one program at a time can have.
#pragma once

#include <string>

namespace vistrel::platform {

class NamedMutex {
 public:
    explicit NamedMutex(const std::string& name);
    /// Lets it go if this object has it; so does the end of the program, however it ends.
    ~NamedMutex();
    NamedMutex(const NamedMutex&) = delete;
    NamedMutex& operator=(const NamedMutex&) = delete;

    /// Waits until nobody else has it, and takes it. False when somebody still had it then. Where
    /// the system refuses to make one, everybody has it.
    bool TakeWithin(unsigned long milliseconds);

 private:
    void* handle_;
    bool taken_ = false;
};

}  // namespace vistrel::platform
