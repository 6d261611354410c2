// The boot-logo option in the boot configuration file.
#include "core/boot_option.h"

#include <limits>

#include "platform/files.h"
#include "platform/profile.h"

namespace vistrel::core {

namespace {

constexpr const char* kSection = "Options";
constexpr const char* kKey = "Logo";
constexpr std::int16_t kShown = 1;

}  // namespace

std::int16_t ReadBootLogoOption(const std::string& bootConfigurationFile) {
    const int option = platform::ReadProfileInt(bootConfigurationFile, kSection, kKey, kShown);
    using Limits = std::numeric_limits<std::int16_t>;
    if (option < Limits::min() || option > Limits::max()) return kShown;
    return static_cast<std::int16_t>(option);
}

std::string BootLogoOptionText(std::int16_t option) {
    std::string text = option < 0 ? "" : " ";
    text += std::to_string(option);
    return text;
}

void KeepBootLogoOption(const std::string& bootConfigurationFile) {
    platform::SetAttributes(bootConfigurationFile, platform::kReadOnlyFile);
}

void WriteBootLogoOption(const std::string& bootConfigurationFile, std::int16_t option) {
    platform::SetAttributes(bootConfigurationFile, platform::kNormalFile);
    platform::WriteProfileText(bootConfigurationFile, kSection, kKey, BootLogoOptionText(option));
}

}  // namespace vistrel::core
