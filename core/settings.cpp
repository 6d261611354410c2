// The preferences: one table says for each value where it lies, how it is read, and when it is read
// and written.
#include "core/settings.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <variant>

#include "core/generali.h"
#include "core/library.h"
#include "core/mdl_registry.h"
#include "core/number_text.h"
#include "core/set_in_making.h"
#include "platform/files.h"

namespace vistrel::core {

namespace {

using TextField = std::string Settings::*;
using NumberField = std::int16_t Settings::*;

/// How a stored text becomes a field's value.
enum class Rule {
    Text,           ///< as it is
    BootDrive,      ///< a drive letter; the drive of the Windows directory when empty
    ProgramOfName,  ///< as it is, but empty without a name for the program
    Folder,         ///< a folder that exists; otherwise the program's own
    Number,         ///< any number; 0 when it has none
    UpToOne,        ///< 0 when it is neither 0 nor 1
    UpToTwo,        ///< 0 when it is not 0 to 2
    // Quirk: what is switched off is on again at the next start
    // (SettingsTest.NumbersLoadByTheirRule).
    NeverZero,     ///< 1 for 0
    OneWhenEmpty,  ///< 1 when empty; a stored 0 is kept
};

struct SettingRow {
    const char* valueName;
    std::variant<TextField, NumberField> field;
    Rule rule;
    int loadPlace;  ///< from 0; later ones may depend on earlier ones
};

// In the order in which they are saved. The splash screen's flag is read first, since it counts
// before there is any window. How the main window looks comes last: what matters is safe by then.
constexpr SettingRow kRows[] = {
    {"SearchLogoPath", &Settings::searchLogoPath, Rule::Text, 4},
    {"View", &Settings::view, Rule::UpToOne, 10},
    {"Synchronize logos", &Settings::synchronizeLogos, Rule::Number, 1},
    {"StartUpDrive", &Settings::bootRoot, Rule::BootDrive, 3},
    {"DefaultLogoSet", &Settings::defaultLogoSet, Rule::Text, 2},
    {"DefaultAction", &Settings::defaultAction, Rule::UpToTwo, 9},
    {"CustomProgName", &Settings::customProgName, Rule::Text, 7},
    {"CustomProgPath", &Settings::customProgPath, Rule::ProgramOfName, 8},
    {"DeleteInTheRecycleBin", &Settings::deleteInTheRecycleBin, Rule::NeverZero, 11},
    {"ConfirmLogosetDelete", &Settings::confirmLogosetDelete, Rule::NeverZero, 12},
    {"ConfirmLogoTypeChange", &Settings::confirmLogoTypeChange, Rule::NeverZero, 13},
    {"ShowSplashScreen", &Settings::showSplashScreen, Rule::OneWhenEmpty, 0},
    {"LogoPath", &Settings::logoPath, Rule::Folder, 5},
    {"ActionOnDoubleClick", &Settings::actionOnDoubleClick, Rule::Number, 6},
    {"WindowLeft", &Settings::windowLeft, Rule::Number, 14},
    {"WindowTop", &Settings::windowTop, Rule::Number, 15},
    {"WindowWidth", &Settings::windowWidth, Rule::Number, 16},
    {"WindowHeight", &Settings::windowHeight, Rule::Number, 17},
    {"WindowMaximized", &Settings::windowMaximized, Rule::Number, 18},
    {"AutoshowAnimation", &Settings::autoshowAnimation, Rule::Number, 19},
    {"Thumbnails", &Settings::thumbnails, Rule::UpToOne, 20},
    {"ThumbnailSize", &Settings::thumbnailSize, Rule::Number, 21},
    {"Details", &Settings::details, Rule::UpToOne, 23},
    {"LeftOutOfRotation", &Settings::leftOutOfRotation, Rule::Text, 22},
};

/// Whether each place in the order of reading belongs to exactly one row.
constexpr bool LoadPlacesAreAPermutation() {
    bool taken[std::size(kRows)] = {};
    for (const SettingRow& row : kRows) {
        if (row.loadPlace < 0 || row.loadPlace >= std::ssize(kRows)) return false;
        if (std::exchange(taken[row.loadPlace], true)) return false;
    }
    return true;
}

static_assert(LoadPlacesAreAPermutation());

/// The same rows in the order in which they are read.
std::array<const SettingRow*, std::size(kRows)> RowsInLoadOrder() {
    std::array<const SettingRow*, std::size(kRows)> rows{};
    for (const SettingRow& row : kRows) rows[row.loadPlace] = &row;
    return rows;
}

const SettingRow& RowOf(const char* valueName) {
    return *std::find_if(std::begin(kRows), std::end(kRows), [&](const SettingRow& row) {
        return std::string(row.valueName) == valueName;
    });
}

std::string StoredText(const SettingRow& row) {
    return CutAtNul(TextOf(QueryValue(platform::Hive::LocalMachine, kSettingsKey, row.valueName)));
}

std::string TextByRule(Rule rule, const std::string& stored, const Settings& settings,
                       const SystemLocations& locations) {
    switch (rule) {
        case Rule::BootDrive:
            return (stored.empty() ? locations.windowsDirectory.substr(0, 1) : stored) + ":\\";
        case Rule::ProgramOfName:
            return settings.customProgName.empty() ? std::string() : stored;
        case Rule::Folder:
            // An empty text with a backslash would be the root of the current drive.
            if (stored.empty() || !platform::IsFolder(AddBackslash(stored)))
                return locations.programFolder;
            return AddBackslash(stored);
        default:
            return stored;
    }
}

/// `otherwise` is the value of a number that does not fit.
std::int16_t NumberByRule(Rule rule, const std::string& stored, std::int16_t otherwise) {
    const std::int16_t number = LeadingNumber(stored).value_or(otherwise);
    switch (rule) {
        case Rule::UpToOne:
            return number < 0 || number > 1 ? 0 : number;
        case Rule::UpToTwo:
            return number < 0 || number > 2 ? 0 : number;
        case Rule::NeverZero:
            return number == 0 ? 1 : number;
        case Rule::OneWhenEmpty:
            return stored.empty() ? 1 : number;
        default:
            return number;
    }
}

void ReadRow(const SettingRow& row, const SystemLocations& locations, Settings& settings) {
    const std::string stored = StoredText(row);
    if (const auto* text = std::get_if<TextField>(&row.field)) {
        settings.*(*text) = TextByRule(row.rule, stored, settings, locations);
    } else {
        std::int16_t& number = settings.*std::get<NumberField>(row.field);
        number = NumberByRule(row.rule, stored, number);
    }
}

/// What is stored for a field.
std::string TextToStore(const SettingRow& row, const Settings& settings) {
    if (const auto* number = std::get_if<NumberField>(&row.field)) {
        return std::to_string(settings.*(*number));
    }
    const std::string& text = settings.*std::get<TextField>(row.field);
    if (row.rule == Rule::BootDrive) return text.substr(0, 1);
    return text;
}

bool WriteRow(const SettingRow& row, const std::string& text) {
    return SetKeyValue(platform::Hive::LocalMachine, kSettingsKey, row.valueName, text,
                       platform::kRegistryText) == 0;
}

// Keeps the screens that are installed now as a set, so that the user can go back to them. A screen
// that is missing or cannot be copied is left out. The set is there with the first run's end only:
// one of that name is never filled again.
void SetUpFirstRun(const SystemLocations& locations, Settings& settings) {
    const std::string setFolder = settings.logoPath + kOriginalLogos + "\\";
    if (!platform::IsFolder(setFolder)) {
        SetInMaking originals(settings.logoPath);
        const auto installed = InstalledScreenPaths(settings.bootRoot, locations.windowsDirectory);
        for (std::size_t screen = 0; screen < installed.size(); ++screen) {
            if (originals.Folder().empty()) break;
            platform::CopyOver(installed[screen], originals.Folder() + kScreenFileNames[screen]);
        }
        originals.Finish(kOriginalLogos);
        settings.defaultLogoSet = kOriginalLogos;
    }
    settings.deleteInTheRecycleBin = 1;
    settings.confirmLogosetDelete = 1;
    settings.confirmLogoTypeChange = 1;
    settings.showSplashScreen = 1;
}

}  // namespace

std::int16_t ReadShowSplashScreen() {
    const SettingRow& row = RowOf("ShowSplashScreen");
    return NumberByRule(row.rule, StoredText(row), 1);
}

Settings ReadSettings(const SystemLocations& locations) {
    Settings settings;
    for (const SettingRow* row : RowsInLoadOrder()) ReadRow(*row, locations, settings);
    return settings;
}

Settings LoadSettings(const SystemLocations& locations) {
    Settings settings = ReadSettings(locations);
    if (settings.defaultLogoSet.empty()) SetUpFirstRun(locations, settings);
    return settings;
}

void SaveSettings(const Settings& settings) {
    CreateNewKey(platform::Hive::LocalMachine, kSettingsKey);
    for (const SettingRow& row : kRows) {
        if (!WriteRow(row, TextToStore(row, settings))) return;
    }
}

bool SaveDefaultLogoSet(const std::string& setName) {
    CreateNewKey(platform::Hive::LocalMachine, kSettingsKey);
    return WriteRow(RowOf("DefaultLogoSet"), setName);
}

}  // namespace vistrel::core
