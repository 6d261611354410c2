// The registry operations of this program: each opens what it needs and closes it again.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "platform/registry_key.h"

namespace vistrel::core {

/// A value read or to be written: nothing, a text (which may hold NULs) or a number.
using RegistryValue = std::variant<std::monostate, std::string, std::uint32_t>;

/// Creates the key if it is absent.
platform::RegistryStatus CreateNewKey(platform::Hive hive, const std::string& path);
/// Opens the key and writes the value through SetValueEx.
platform::RegistryStatus SetKeyValue(platform::Hive hive, const std::string& path,
                                     const std::string& name, const RegistryValue& value,
                                     std::uint32_t type);
/// Type 1 writes the text with a size equal to its length, without a terminating NUL; type 4 the
/// number; other types write nothing.
platform::RegistryStatus SetValueEx(platform::RegistryKey& key, const std::string& name,
                                    std::uint32_t type, const RegistryValue& value);
/// Opens the key and reads the value through QueryValueEx; nothing when it is missing.
RegistryValue QueryValue(platform::Hive hive, const std::string& path, const std::string& name);
/// Reads one value. A stored terminating NUL stays in the text; a type that is neither text nor
/// number gives status -1 and no value.
platform::RegistryStatus QueryValueEx(platform::RegistryKey& key, const std::string& name,
                                      RegistryValue& value);
/// Removes one value.
platform::RegistryStatus DeleteValue(platform::Hive hive, const std::string& path,
                                     const std::string& name);

/// A value as text: a number in decimal, nothing as the empty text, a text as it is.
std::string TextOf(const RegistryValue& value);

}  // namespace vistrel::core
