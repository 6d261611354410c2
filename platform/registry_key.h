// An open registry key that closes itself.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct HKEY__;

namespace vistrel::platform {

enum class Hive { ClassesRoot, CurrentUser, LocalMachine };

/// Registry status: 0 is success, anything else the system's error number.
using RegistryStatus = long;

/// Types of a value that this program knows.
inline constexpr std::uint32_t kRegistryText = 1;    ///< REG_SZ
inline constexpr std::uint32_t kRegistryNumber = 4;  ///< REG_DWORD

class RegistryKey {
 public:
    RegistryKey() = default;
    ~RegistryKey();
    RegistryKey(RegistryKey&& other) noexcept;
    RegistryKey& operator=(RegistryKey&& other) noexcept;

    /// Opens a key with full access.
    RegistryStatus Open(Hive hive, const std::string& path);
    /// Creates the key if it is absent (not volatile, no class) and opens it with full access.
    RegistryStatus Create(Hive hive, const std::string& path);
    void Close();

    /// Writes `bytes` as they are. Windows 95 ends a text at its first NUL and adds one of its own.
    RegistryStatus Set(const std::string& name, std::uint32_t type, const void* bytes,
                       std::uint32_t size);
    /// Type and size in bytes of a value.
    RegistryStatus Measure(const std::string& name, std::uint32_t& type, std::uint32_t& size);
    /// Reads at most `size` bytes into `bytes`; `size` becomes what was read.
    RegistryStatus Read(const std::string& name, void* bytes, std::uint32_t& size);
    RegistryStatus Delete(const std::string& name);

 private:
    HKEY__* key_ = nullptr;
};

}  // namespace vistrel::platform
