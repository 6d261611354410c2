// The registry operations of this program.
#include "core/mdl_registry.h"

namespace vistrel::core {

namespace {

constexpr platform::RegistryStatus kUnknownType = -1;

}  // namespace

platform::RegistryStatus CreateNewKey(platform::Hive hive, const std::string& path) {
    platform::RegistryKey key;
    return key.Create(hive, path);
}

platform::RegistryStatus SetKeyValue(platform::Hive hive, const std::string& path,
                                     const std::string& name, const RegistryValue& value,
                                     std::uint32_t type) {
    platform::RegistryKey key;
    const platform::RegistryStatus status = key.Open(hive, path);
    if (status != 0) return status;
    return SetValueEx(key, name, type, value);
}

platform::RegistryStatus SetValueEx(platform::RegistryKey& key, const std::string& name,
                                    std::uint32_t type, const RegistryValue& value) {
    if (type == platform::kRegistryText) {
        const std::string text = TextOf(value);
        return key.Set(name, type, text.data(), static_cast<std::uint32_t>(text.size()));
    }
    const auto* number = std::get_if<std::uint32_t>(&value);
    if (type != platform::kRegistryNumber || !number) return kUnknownType;
    return key.Set(name, type, number, sizeof *number);
}

RegistryValue QueryValue(platform::Hive hive, const std::string& path, const std::string& name) {
    platform::RegistryKey key;
    RegistryValue value;
    if (key.Open(hive, path) == 0) QueryValueEx(key, name, value);
    return value;
}

platform::RegistryStatus QueryValueEx(platform::RegistryKey& key, const std::string& name,
                                      RegistryValue& value) {
    value = {};
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    platform::RegistryStatus status = key.Measure(name, type, size);
    if (status != 0) return status;
    if (type == platform::kRegistryText) {
        std::string text(size, '\0');
        status = key.Read(name, text.data(), size);
        if (status == 0) value = std::move(text);
        return status;
    }
    if (type == platform::kRegistryNumber) {
        std::uint32_t number = 0;
        size = sizeof number;
        status = key.Read(name, &number, size);
        if (status == 0) value = number;
        return status;
    }
    return kUnknownType;
}

platform::RegistryStatus DeleteValue(platform::Hive hive, const std::string& path,
                                     const std::string& name) {
    platform::RegistryKey key;
    const platform::RegistryStatus status = key.Open(hive, path);
    if (status != 0) return status;
    return key.Delete(name);
}

std::string TextOf(const RegistryValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<std::uint32_t>(&value)) return std::to_string(*number);
    return {};
}

}  // namespace vistrel::core
