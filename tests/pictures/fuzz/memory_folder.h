// Files for what is fuzzed: a folder in memory where there is one, so that the disk is left alone.
#pragma once

#include <stdlib.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace vistrel::fuzz {

class MemoryFolder {
 public:
    MemoryFolder() {
        std::string name = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
        name += "/vistrel-fuzz-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) std::abort();
        path_ = name;
    }
    ~MemoryFolder() { std::filesystem::remove_all(path_); }
    MemoryFolder(const MemoryFolder&) = delete;
    MemoryFolder& operator=(const MemoryFolder&) = delete;

    std::string File(const std::string& name) const { return path_ / name; }

 private:
    std::filesystem::path path_;
};

inline void Write(const std::string& path, const std::uint8_t* data, std::size_t size) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr || std::fwrite(data, 1, size, file) != size) std::abort();
    std::fclose(file);
}

}  // namespace vistrel::fuzz
