// The boot-logo option: key "Logo" of section "Options" of the boot configuration file.
#pragma once

#include <cstdint>
#include <string>

namespace vistrel::core {

/// The option's value; 1 when file or key is missing.
std::int16_t ReadBootLogoOption(const std::string& bootConfigurationFile);

/// Leaves the option as it is and makes the file read-only, and nothing else.
// Quirk: the file loses hidden and system attributes
// (BootOptionTest.KeepingItMakesTheFileReadOnlyAndNothingElse).
void KeepBootLogoOption(const std::string& bootConfigurationFile);

/// The option as it is written: in decimal.
// Quirk: with a blank before a number that is not negative
// (BootOptionTest.OnlyNumbersThatAreNotNegativeHaveALeadingBlank).
std::string BootLogoOptionText(std::int16_t option);

/// Takes the file's attributes off and writes the option.
void WriteBootLogoOption(const std::string& bootConfigurationFile, std::int16_t option);

}  // namespace vistrel::core
