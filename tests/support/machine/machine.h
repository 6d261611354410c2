// A small machine for tests: folders, files and registry values as a user's computer has them. It
// is made and looked at by the system's own calls and not by those that are tested.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/locations.h"

namespace vistrel::test {

using Names = std::vector<std::string>;

// Files. Folders end in a backslash.

/// Writes a file with normal attributes, whatever stood there.
void Put(const std::string& path, const std::string& contents);
/// What a file holds; empty when there is none.
std::optional<std::string> Contents(const std::string& path);
bool Exists(const std::string& path);
/// The attributes but the archive bit, which Wine gives to every file.
unsigned long AttributesOf(const std::string& path);
void GiveAttributes(const std::string& path, unsigned long attributes);
void MakeFolders(const std::string& path);
/// Removes a folder with all that it holds, or a file. Nothing happens when there is none.
void RemoveTree(const std::string& path);
/// Gives a folder a time of last access that looking into it does not change, for it lies ahead.
/// Wine's browser for folders knows one again by that time, among others.
void KeepAccessTime(const std::string& folder);
/// The names of what a folder holds, sorted; short ones where the code page lacks letters.
Names NamesIn(const std::string& folder);

/// A name with letters that are not plain in this machine's code page. Where characters may be two
/// bytes long, second bytes are those of a backslash and of a small letter.
std::string OddName();

// Values of the settings key and of other keys under HKEY_LOCAL_MACHINE.

inline constexpr const char* kRunKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

struct StoredValue {
    unsigned long type = 0;
    std::string bytes;

    bool operator==(const StoredValue&) const = default;
    friend void PrintTo(const StoredValue& value, std::ostream* out) {
        *out << "type " << value.type << " " << testing::PrintToString(value.bytes);
    }
};

/// A text without a terminating NUL.
StoredValue TextValue(const std::string& text);
/// A text with one, as most programs store it.
StoredValue TextValueWithNul(const std::string& text);
/// What is left when this program has stored a text without a terminating NUL: Windows 95 and 98
/// add one of their own.
StoredValue SavedText(const std::string& text);

std::optional<StoredValue> Stored(const std::string& name);
void Store(const std::string& name, const StoredValue& value);
std::optional<StoredValue> StoredIn(const std::string& key, const std::string& name);
void StoreIn(const std::string& key, const std::string& name, const StoredValue& value);
void ForgetValue(const std::string& key, const std::string& name);
/// Removes the settings key.
void ForgetSettings();

/// Runs `command` once with its operations counted, then once for each of them made to fail, each
/// time on what `prepare` makes. `check` is told the number of the operation that failed.
void WithEachOperationFailing(const std::function<void()>& prepare,
                              const std::function<void()>& command,
                              const std::function<void(int failed)>& check);

/// Fresh folders and no settings for each test; nothing of it stays.
class Machine : public testing::Test {
 protected:
    Machine();
    ~Machine() override;

    /// Puts the screens of a set into a folder: "<tag> LOGO.SYS" and so on.
    void PutScreens(const std::string& folder, const std::string& tag);
    /// What stands as startup, wait and shutdown screen of this machine; "-" where there is none.
    std::vector<std::string> Installed() const;

    const std::string root = "C:\\machine\\";
    const std::string boot = root + "boot\\";
    const std::string windows = root + "windows\\";
    const std::string logos = root + "logos\\";
    const std::string program = root + "program\\";
    const std::string startup = root + "startup\\";
    const core::SystemLocations locations = {program, windows, startup};
};

}  // namespace vistrel::test
