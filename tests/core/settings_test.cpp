// The preferences: each value's default, reading and writing.
#include "core/settings.h"

#include <windows.h>

#include <iterator>
#include <random>

#include "core/library.h"
#include "platform/fault.h"
#include "tests/support/machine/machine.h"
#include "tests/support/machine/setting_rows.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

/// A numeric value and what its texts load as.
struct NumberCase {
    const char* name;
    SettingNumber field;
    int missing;
    int ofZero;
    int largest;  ///< the largest number that is kept
};

std::vector<NumberCase> NumberCases() {
    std::vector<NumberCase> cases;
    for (const SettingRow& row : SettingRows())
        if (const auto* field = std::get_if<SettingNumber>(&row.field))
            cases.push_back({row.name, *field, row.missing, row.ofZero, row.largest});
    return cases;
}

const std::vector<NumberCase> kNumbers = NumberCases();

/// A text value that is read as it stands.
struct TextCase {
    const char* name;
    SettingText field;
};

constexpr TextCase kTexts[] = {
    {"SearchLogoPath", &Settings::searchLogoPath},
    {"DefaultLogoSet", &Settings::defaultLogoSet},
    {"CustomProgName", &Settings::customProgName},
    {"CustomProgPath", &Settings::customProgPath},
    {"LeftOutOfRotation", &Settings::leftOutOfRotation},
};

class SettingsTest : public Machine {
 protected:
    /// What one stored value loads as, all others missing.
    Settings LoadWith(const char* name, const StoredValue& value) {
        ForgetSettings();
        Store("CustomProgName", TextValue("Painter"));
        Store(name, value);
        return ReadSettings(locations);
    }
    int NumberLoaded(const NumberCase& number, const std::string& text) {
        return LoadWith(number.name, TextValue(text)).*number.field;
    }
};

TEST_F(SettingsTest, WithoutAnyKeyEachValueTakesItsDefault) {
    const Settings settings = ReadSettings(locations);
    for (const NumberCase& number : kNumbers) {
        EXPECT_EQ(settings.*number.field, number.missing) << number.name;
    }
    for (const TextCase& text : kTexts) EXPECT_EQ(settings.*text.field, "") << text.name;
    EXPECT_EQ(settings.bootRoot, "C:\\");
    EXPECT_EQ(settings.logoPath, program);
}

TEST_F(SettingsTest, NumbersLoadByTheirRule) {
    for (const NumberCase& number : kNumbers) {
        SCOPED_TRACE(number.name);
        EXPECT_EQ(NumberLoaded(number, ""), number.missing);
        EXPECT_EQ(NumberLoaded(number, "0"), number.ofZero);
        EXPECT_EQ(NumberLoaded(number, "1"), 1);
        EXPECT_EQ(NumberLoaded(number, std::to_string(number.largest)), number.largest);
        if (number.largest < 32767) {
            EXPECT_EQ(NumberLoaded(number, std::to_string(number.largest + 1)), 0);
            EXPECT_EQ(NumberLoaded(number, "7"), 0);
            EXPECT_EQ(NumberLoaded(number, "-1"), 0);
        }
    }
}

TEST_F(SettingsTest, ANumberIsWhatATextBeginsWith) {
    for (const NumberCase& number : kNumbers) {
        SCOPED_TRACE(number.name);
        EXPECT_EQ(NumberLoaded(number, " 1 and more"), 1);
        EXPECT_EQ(NumberLoaded(number, "1.9"), 1);
        EXPECT_EQ(NumberLoaded(number, std::string("1\0007", 3)), 1);
        EXPECT_EQ(NumberLoaded(number, "yes"), number.ofZero);
        EXPECT_EQ(NumberLoaded(number, "-"), number.ofZero);
        EXPECT_EQ(NumberLoaded(number, std::string(4000, ' ')), number.ofZero);
    }
}

TEST_F(SettingsTest, ANumberThatDoesNotFitTakesTheDefault) {
    for (const NumberCase& number : kNumbers) {
        SCOPED_TRACE(number.name);
        EXPECT_EQ(NumberLoaded(number, "32768"), number.missing);
        EXPECT_EQ(NumberLoaded(number, "-32769"), number.missing);
        EXPECT_EQ(NumberLoaded(number, std::string(4000, '9')), number.missing);
    }
}

TEST_F(SettingsTest, ValuesOfOtherTypesAreTakenWhereTheyCanBe) {
    for (const NumberCase& number : kNumbers) {
        SCOPED_TRACE(number.name);
        EXPECT_EQ(LoadWith(number.name, {REG_DWORD, std::string("\1\0\0\0", 4)}).*number.field, 1);
        EXPECT_EQ(LoadWith(number.name, {REG_DWORD, "\xFF\xFF\xFF\xFF"}).*number.field,
                  number.missing);
        EXPECT_EQ(LoadWith(number.name, {REG_BINARY, "1"}).*number.field, number.missing);
        EXPECT_EQ(LoadWith(number.name, {REG_EXPAND_SZ, "1"}).*number.field, number.missing);
    }
    for (const TextCase& text : kTexts) {
        EXPECT_EQ(LoadWith(text.name, {REG_BINARY, "x"}).*text.field, "") << text.name;
        EXPECT_EQ(LoadWith(text.name, {REG_DWORD, std::string("\7\0\0\0", 4)}).*text.field, "7")
            << text.name;
    }
    EXPECT_EQ(LoadWith("LogoPath", {REG_BINARY, logos}).logoPath, program);
    EXPECT_EQ(LoadWith("StartUpDrive", {REG_BINARY, "D"}).bootRoot, "C:\\");
}

TEST_F(SettingsTest, TextsAreCutAtTheFirstNul) {
    for (const TextCase& text : kTexts) {
        SCOPED_TRACE(text.name);
        EXPECT_EQ(LoadWith(text.name, TextValueWithNul(OddName() + " \"one\"")).*text.field,
                  OddName() + " \"one\"");
        EXPECT_EQ(LoadWith(text.name, TextValue(std::string("a\0b", 3))).*text.field, "a");
        EXPECT_EQ(LoadWith(text.name, TextValue(std::string("\0b", 2))).*text.field, "");
        const std::string longText(4000, 'x');
        EXPECT_EQ(LoadWith(text.name, TextValue(longText)).*text.field, longText);
    }
}

TEST_F(SettingsTest, TheBootRootIsTheStoredLetterOrThatOfTheWindowsDirectory) {
    EXPECT_EQ(LoadWith("StartUpDrive", TextValue("D")).bootRoot, "D:\\");
    EXPECT_EQ(LoadWith("StartUpDrive", TextValueWithNul("D")).bootRoot, "D:\\");
    EXPECT_EQ(LoadWith("StartUpDrive", TextValue("")).bootRoot, "C:\\");
    ForgetSettings();
    EXPECT_EQ(ReadSettings({program, "F:\\WIN\\", ""}).bootRoot, "F:\\");
}

TEST_F(SettingsTest, TheLogoFolderGetsABackslashWhereItHasNone) {
    EXPECT_EQ(LoadWith("LogoPath", TextValue(root + "logos")).logoPath, logos);
    EXPECT_EQ(LoadWith("LogoPath", TextValueWithNul(logos)).logoPath, logos);
    EXPECT_EQ(LoadWith("LogoPath", TextValue("C:\\")).logoPath, "C:\\");
}

TEST_F(SettingsTest, ALogoFolderThatIsNotThereBecomesTheProgramFolder) {
    Put(root + "file", "");
    for (const std::string& stored :
         {std::string(), root + "gone", root + "file", std::string("Q:\\LOGOS\\"),
          std::string("?*<>|"), std::string(4000, 'x'), std::string("\0x", 2)}) {
        EXPECT_EQ(LoadWith("LogoPath", TextValue(stored)).logoPath, program) << stored;
    }
}

TEST_F(SettingsTest, ACustomProgramWithoutANameHasNoPathEither) {
    Store("CustomProgPath", TextValue("C:\\PAINTER.EXE"));
    EXPECT_EQ(ReadSettings(locations).customProgPath, "");
    Store("CustomProgName", TextValue(std::string("\0Painter", 8)));
    EXPECT_EQ(ReadSettings(locations).customProgPath, "");
    EXPECT_EQ(ReadSettings(locations).customProgName, "");
    Store("CustomProgName", TextValue("Painter"));
    EXPECT_EQ(ReadSettings(locations).customProgPath, "C:\\PAINTER.EXE");
}

TEST_F(SettingsTest, TheSplashScreenFlagIsReadOnItsOwn) {
    EXPECT_EQ(ReadShowSplashScreen(), 1);
    Store("ShowSplashScreen", TextValue(""));
    EXPECT_EQ(ReadShowSplashScreen(), 1);
    Store("ShowSplashScreen", TextValue("0"));
    EXPECT_EQ(ReadShowSplashScreen(), 0);
    Store("ShowSplashScreen", TextValueWithNul("1"));
    EXPECT_EQ(ReadShowSplashScreen(), 1);
}

TEST_F(SettingsTest, EachValueIsReadInTheOrderInWhichOthersDependOnIt) {
    std::vector<std::string> order(SettingRows().size());
    for (const SettingRow& row : SettingRows()) order.at(row.loadPlace) = row.name;
    const auto store = [&] {
        ForgetSettings();
        for (const NumberCase& number : kNumbers)
            Store(number.name, TextValue(number.largest == 1 ? "1" : "2"));
        for (const TextCase& text : kTexts) Store(text.name, TextValue("text"));
        Store("StartUpDrive", TextValue("D"));
        Store("LogoPath", TextValue(logos));
    };
    std::vector<std::string> seen;
    Settings settings;
    WithEachOperationFailing(
        store, [&] { settings = ReadSettings(locations); },
        [&](int) {
            // The value whose reading failed is the first that has its default.
            std::vector<std::string> defaults;
            for (const NumberCase& number : kNumbers) {
                const int stored = number.largest == 1 ? 1 : 2;
                if (settings.*number.field == number.missing && number.missing != stored)
                    defaults.push_back(number.name);
            }
            for (const TextCase& text : kTexts) {
                if ((settings.*text.field).empty()) defaults.push_back(text.name);
            }
            if (settings.bootRoot == "C:\\") defaults.push_back("StartUpDrive");
            if (settings.logoPath == program) defaults.push_back("LogoPath");
            // Without a name the custom program has no path.
            if (defaults == std::vector<std::string>{"CustomProgName", "CustomProgPath"})
                defaults.pop_back();
            ASSERT_EQ(defaults.size(), 1u);
            if (seen.empty() || seen.back() != defaults[0]) seen.push_back(defaults[0]);
        });
    EXPECT_EQ(seen, order);
}

Settings UnlikeTheDefaults() {
    Settings settings;
    for (const SettingRow& row : SettingRows()) {
        if (const auto* number = std::get_if<SettingNumber>(&row.field))
            settings.*(*number) = static_cast<std::int16_t>(std::stoi(row.sample));
        else
            settings.*std::get<SettingText>(row.field) = row.sample;
    }
    settings.bootRoot += ":\\";
    return settings;
}

TEST_F(SettingsTest, AllValuesAreSavedAsTextsWithoutANul) {
    SaveSettings(UnlikeTheDefaults());
    for (const SettingRow& row : SettingRows())
        EXPECT_EQ(Stored(row.name), SavedText(row.sample)) << row.name;
}

TEST_F(SettingsTest, WhatWasSavedIsLoadedAgain) {
    const Settings saved = UnlikeTheDefaults();
    SaveSettings(saved);
    const Settings loaded = ReadSettings(locations);
    for (const SettingRow& row : SettingRows()) {
        SCOPED_TRACE(row.name);
        if (const auto* text = std::get_if<SettingText>(&row.field)) {
            EXPECT_EQ(loaded.*(*text), saved.*(*text));
            continue;
        }
        const SettingNumber number = std::get<SettingNumber>(row.field);
        // Some that are switched off are on again: off holds only until the next start.
        EXPECT_EQ(loaded.*number, saved.*number == 0 ? row.ofZero : saved.*number);
    }
}

/// What a key may hold after other programs, other versions and broken disks: any type, any bytes.
StoredValue AnyValue(std::mt19937& random) {
    constexpr unsigned long kTypes[] = {REG_SZ,        REG_SZ,     REG_SZ,
                                        REG_EXPAND_SZ, REG_BINARY, REG_DWORD,
                                        REG_MULTI_SZ,  REG_NONE,   0x12345678ul};
    StoredValue value{kTypes[random() % std::size(kTypes)], {}};
    constexpr std::size_t kLengths[] = {0, 1, 2, 4, 5, 40, 4000};
    const std::string digits = "0123456789-+. ";
    const bool number = random() % 2 == 0;
    for (std::size_t left = kLengths[random() % std::size(kLengths)]; left > 0; --left)
        value.bytes += number ? digits[random() % digits.size()] : static_cast<char>(random());
    return value;
}

TEST_F(SettingsTest, WhateverIsStoredLoadsWithinTheRulesAndStaysTheSameFromThenOn) {
    for (unsigned seed = 1; seed <= 500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        ForgetSettings();
        for (const SettingRow& row : SettingRows()) {
            if (random() % 8 != 0) Store(row.name, AnyValue(random));
        }
        Settings settings = ReadSettings(locations);
        for (const NumberCase& number : kNumbers) {
            SCOPED_TRACE(number.name);
            EXPECT_LE(settings.*number.field, number.largest);
            if (number.largest < 32767) {
                EXPECT_GE(settings.*number.field, 0);
            }
            if (number.ofZero != 0) {
                EXPECT_NE(settings.*number.field, 0);
            }
        }
        for (const TextCase& text : kTexts)
            EXPECT_EQ((settings.*text.field).find('\0'), std::string::npos) << text.name;
        EXPECT_TRUE(settings.bootRoot.ends_with(":\\"));
        EXPECT_TRUE(settings.logoPath.ends_with("\\"));
        EXPECT_TRUE(Exists(settings.logoPath)) << settings.logoPath;

        SaveSettings(settings);
        const Settings again = ReadSettings(locations);
        // Of a drive only the letter is saved, of which a half can be no text.
        if (!IsDBCSLeadByte(settings.bootRoot[0])) {
            EXPECT_EQ(again.bootRoot, settings.bootRoot.substr(0, 1) + ":\\");
        }
        settings.bootRoot = again.bootRoot;
        for (const SettingRow& row : SettingRows()) {
            SCOPED_TRACE(row.name);
            if (const auto* text = std::get_if<SettingText>(&row.field))
                EXPECT_EQ(again.*(*text), settings.*(*text));
            else
                EXPECT_EQ(again.*std::get<SettingNumber>(row.field),
                          settings.*std::get<SettingNumber>(row.field));
        }
    }
}

TEST_F(SettingsTest, AnUnknownInstalledSetIsSavedAsTheEmptyText) {
    Settings settings = UnlikeTheDefaults();
    settings.defaultLogoSet = "";
    settings.bootRoot = "";
    SaveSettings(settings);
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText(""));
    EXPECT_EQ(Stored("StartUpDrive"), SavedText(""));
}

TEST_F(SettingsTest, SavingEndsAtTheFirstValueThatCannotBeWritten) {
    const std::vector<std::string> names = SettingNames();
    int failing = 0;
    WithEachOperationFailing(
        [] {
            ForgetSettings();
            Store("other", TextValue("kept"));
        },
        [] { SaveSettings(UnlikeTheDefaults()); },
        [&](int operation) {
            ++failing;
            // The first operation creates the key, which is there; then two for each value.
            const std::size_t saved = operation == 1 ? names.size() : (operation - 2) / 2;
            for (std::size_t i = 0; i < names.size(); ++i) {
                EXPECT_EQ(Stored(names[i]).has_value(), i < saved) << names[i];
            }
            EXPECT_EQ(Stored("other"), TextValue("kept"));
        });
    EXPECT_EQ(failing, 1 + 2 * static_cast<int>(names.size()));
}

TEST_F(SettingsTest, TheInstalledSetCanBeRecordedAlone) {
    Store("View", {REG_BINARY, "garbage"});
    EXPECT_TRUE(SaveDefaultLogoSet("Blue"));
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Blue"));
    EXPECT_EQ(Stored("View"), (StoredValue{REG_BINARY, "garbage"}));
    EXPECT_FALSE(Stored("LogoPath"));
    fault::FailFromOperation(1);
    EXPECT_FALSE(SaveDefaultLogoSet("Red"));
}

}  // namespace
}  // namespace vistrel::test
