// Names that a user types for a folder or a file.
#include "core/entry_name.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/generali.h"
#include "platform/characters.h"

namespace vistrel::core {
namespace {

/// MAX_PATH without the NUL at its end.
constexpr std::size_t kLongestPath = 259;
/// A folder is only made where a name of 8.3, such as LOGOW.SYS, has room behind its path.
constexpr std::size_t kLongestFolderPath = 247;

// A second byte of a character can be neither a blank nor a dot, so the end may be looked at by
// byte.
std::string WithoutBlanksAndDotsAtTheEnd(const std::string& typed) {
    return typed.substr(0, typed.find_last_not_of(" .") + 1);
}

bool HasForbiddenCharacter(const std::string& name) {
    constexpr std::string_view kForbidden = "\\/:*?\"<>|";
    for (std::size_t at = 0; at < name.size(); at += platform::CharacterLength(name, at)) {
        const auto first = static_cast<unsigned char>(name[at]);
        if (first < ' ' || kForbidden.find(name[at]) != std::string_view::npos) return true;
    }
    return false;
}

/// A device is named with any ending: "NUL.SLS" is as little a folder as "NUL".
bool NamesADevice(const std::string& name) {
    const std::string upper = UpperCase(name.substr(0, name.find('.')));
    const std::string device = upper.substr(0, upper.find_last_not_of(' ') + 1);
    constexpr std::array<std::string_view, 5> kDevices = {"CON", "PRN", "AUX", "NUL", "CLOCK$"};
    if (std::find(kDevices.begin(), kDevices.end(), device) != kDevices.end()) return true;
    return device.size() == 4 && (device.starts_with("COM") || device.starts_with("LPT")) &&
           device[3] >= '1' && device[3] <= '9';
}

std::optional<std::string> Checked(const std::string& typed) {
    std::string name = WithoutBlanksAndDotsAtTheEnd(typed);
    if (name.empty() || HasForbiddenCharacter(name) || NamesADevice(name)) return std::nullopt;
    return name;
}

}  // namespace

std::optional<std::string> SetFolderName(const std::string& typed, const std::string& parent) {
    const auto name = Checked(typed);
    if (!name || parent.size() + name->size() > kLongestFolderPath) return std::nullopt;
    return name;
}

std::optional<std::string> EntryName(const std::string& typed, const std::string& parent) {
    const auto name = Checked(typed);
    if (!name || parent.size() + name->size() > kLongestPath) return std::nullopt;
    return name;
}

}  // namespace vistrel::core
