#include "platform/registry_key.h"

#include <windows.h>

#include <utility>

#include "platform/fault.h"
#include "platform/system_error.h"

namespace vistrel::platform {

namespace {

HKEY RootOf(Hive hive) {
    switch (hive) {
        case Hive::ClassesRoot:
            return HKEY_CLASSES_ROOT;
        case Hive::CurrentUser:
            return HKEY_CURRENT_USER;
        case Hive::LocalMachine:
            break;
    }
    return HKEY_LOCAL_MACHINE;
}

bool IsNt() { return (GetVersion() & 0x80000000u) == 0; }

constexpr RegistryStatus kInjectedStatus = static_cast<RegistryStatus>(kInjectedError);

}  // namespace

RegistryKey::~RegistryKey() { Close(); }

RegistryKey::RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}

RegistryKey& RegistryKey::operator=(RegistryKey&& other) noexcept {
    std::swap(key_, other.key_);
    return *this;
}

RegistryStatus RegistryKey::Open(Hive hive, const std::string& path) {
    Close();
    if (fault::ShouldFail()) return kInjectedStatus;
    return RegOpenKeyExA(RootOf(hive), path.c_str(), 0, KEY_ALL_ACCESS, &key_);
}

RegistryStatus RegistryKey::Create(Hive hive, const std::string& path) {
    Close();
    if (fault::ShouldFail()) return kInjectedStatus;
    DWORD disposition = 0;
    return RegCreateKeyExA(RootOf(hive), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                           KEY_ALL_ACCESS, nullptr, &key_, &disposition);
}

void RegistryKey::Close() {
    if (key_) RegCloseKey(std::exchange(key_, nullptr));
}

RegistryStatus RegistryKey::Set(const std::string& name, std::uint32_t type, const void* bytes,
                                std::uint32_t size) {
    if (fault::ShouldFail()) return kInjectedStatus;
    // Windows 95 finds a text's end by its NUL, whatever the size. NT takes the size, but counts a
    // NUL that stands right behind the end, so a byte other than NUL is put there.
    std::vector<BYTE> followed(static_cast<const BYTE*>(bytes),
                               static_cast<const BYTE*>(bytes) + size);
    followed.push_back(IsNt() ? 1 : 0);
    return RegSetValueExA(key_, name.c_str(), 0, type, followed.data(), size);
}

RegistryStatus RegistryKey::Measure(const std::string& name, std::uint32_t& type,
                                    std::uint32_t& size) {
    if (fault::ShouldFail()) return kInjectedStatus;
    DWORD foundType = 0;
    DWORD foundSize = 0;
    const LSTATUS status =
        RegQueryValueExA(key_, name.c_str(), nullptr, &foundType, nullptr, &foundSize);
    type = foundType;
    size = foundSize;
    return status;
}

RegistryStatus RegistryKey::Read(const std::string& name, void* bytes, std::uint32_t& size) {
    if (fault::ShouldFail()) return kInjectedStatus;
    DWORD readSize = size;
    const LSTATUS status = RegQueryValueExA(key_, name.c_str(), nullptr, nullptr,
                                            static_cast<BYTE*>(bytes), &readSize);
    size = readSize;
    return status;
}

RegistryStatus RegistryKey::Delete(const std::string& name) {
    if (fault::ShouldFail()) return kInjectedStatus;
    return RegDeleteValueA(key_, name.c_str());
}

}  // namespace vistrel::platform
