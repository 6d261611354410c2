// What the tests know of each setting, in one table.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "core/settings.h"

namespace vistrel::test {

using SettingText = std::string core::Settings::*;
using SettingNumber = std::int16_t core::Settings::*;

struct SettingRow {
    const char* name;
    std::variant<SettingText, SettingNumber> field;
    int loadPlace;       ///< in the order of reading, from 0
    std::string sample;  ///< what is stored of a value unlike the default

    // What texts load as, where the value is a number.
    int missing = 0;
    int ofZero = 0;
    int largest = 32767;  ///< the largest number that is kept
};

/// A row for each setting, in the order in which they are saved.
const std::vector<SettingRow>& SettingRows();

/// Their names.
std::vector<std::string> SettingNames();

}  // namespace vistrel::test
