// What happens on the machine besides: other programs, other displays.
#include <algorithm>

#include "tests/monkey/monkey.h"

namespace vistrel::test {

std::string Monkey::AnySet() {
    std::vector<std::string> names;
    for (const auto& [name, files] : library_)
        if (!name.empty()) names.push_back(name);
    return names.empty() ? ""
                         : names[static_cast<std::size_t>(Below(static_cast<int>(names.size())))];
}

std::string Monkey::AnyScreen() {
    const std::string set = AnySet();
    const auto files = library_.find(set);
    if (set.empty() || files->second.empty()) return "";
    auto file = files->second.begin();
    std::advance(file, Below(static_cast<int>(files->second.size())));
    return logos + set + "\\" + file->first;
}

Permits Monkey::ChangeDisplay() {
    struct Size {
        DWORD width, height;
    };
    static constexpr Size kSizes[] = {{640, 480}, {800, 600}, {1024, 768}};
    const Size size = OneOf(kSizes);
    DEVMODEA mode{};
    mode.dmSize = sizeof mode;
    mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
    mode.dmPelsWidth = size.width;
    mode.dmPelsHeight = size.height;
    ChangeDisplaySettingsA(&mode, 0);
    return {};
}

Permits Monkey::RenameSetOutside() {
    const std::string set = AnySet();
    if (!set.empty()) MoveFileA((logos + set).c_str(), (logos + "Renamed " + set).c_str());
    TakeAsGiven();
    return {};
}

Permits Monkey::DeleteSetOutside() {
    const std::string set = AnySet();
    if (!set.empty() && held_ == INVALID_HANDLE_VALUE) RemoveTree(logos + set);
    TakeAsGiven();
    return {};
}

Permits Monkey::CopySetOutside() {
    // One of its screens may be held open.
    if (held_ != INVALID_HANDLE_VALUE) return {};
    static const std::string kSamples[] = {"City Lights", "Sunny Day", "Deep Sea", "Night Sky"};
    const std::string sample = OneOf(kSamples);
    const std::string from = "C:\\test\\sets\\" + sample + "\\";
    const std::string to =
        logos + sample + (OneIn(2) ? "" : " " + std::to_string(Below(20))) + "\\";
    MakeFolders(to);
    for (const std::string& name : NamesIn(from))
        Put(to + name, Contents(from + name).value_or(""));
    TakeAsGiven();
    return {};
}

Permits Monkey::DamageScreenOutside() {
    const std::string screen = AnyScreen();
    if (screen.empty()) return {};
    std::string contents = Contents(screen).value_or("");
    if (OneIn(2)) contents.resize(contents.size() / static_cast<std::size_t>(1 + Below(9)));
    for (int i = 0; i < 20 && !contents.empty(); ++i)
        contents[random_() % (OneIn(2) ? std::min<std::size_t>(contents.size(), 60)
                                       : contents.size())] = static_cast<char>(random_());
    GiveAttributes(screen, FILE_ATTRIBUTE_NORMAL);
    // Not what somebody holds open.
    if (!DeleteFileA(screen.c_str())) return {};
    Put(screen, contents);
    TakeAsGiven();
    return {};
}

Permits Monkey::ProtectScreen() {
    const std::string screen = AnyScreen();
    if (screen.empty()) return {};
    GiveAttributes(
        screen, OneIn(2) ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    protected_ = true;
    return {};
}

void Monkey::SpoilSettings() {
    static constexpr const char* kNames[] = {
        "View",           "Thumbnails",       "ThumbnailSize",  "WindowLeft",
        "WindowTop",      "WindowWidth",      "WindowHeight",   "WindowMaximized",
        "DefaultAction",  "StartUpDrive",     "DefaultLogoSet", "ActionOnDoubleClick",
        "CustomProgPath", "AutoshowAnimation"};
    for (int i = Below(4); i > 0; --i) {
        std::string garbage(static_cast<std::size_t>(Below(OneIn(5) ? 3000 : 12)), ' ');
        for (char& letter : garbage)
            letter = static_cast<char>(OneIn(3) ? random_() : '0' + Below(12));
        const char* const name = OneOf(kNames);
        const auto type = static_cast<unsigned long>(OneIn(4) ? REG_DWORD : REG_SZ);
        Store(name, {type, garbage});
        log_.push_back(std::string("spoil ") + name + ", type " + std::to_string(type) + ": " +
                       testing::PrintToString(garbage.substr(0, 200)));
    }
}

// Until the next time nobody else reads or deletes it.
Permits Monkey::HoldScreenOpen() {
    if (held_ != INVALID_HANDLE_VALUE) {
        CloseHandle(held_);
        held_ = INVALID_HANDLE_VALUE;
    } else if (const std::string screen = AnyScreen(); !screen.empty()) {
        held_ = CreateFileA(screen.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                            0, nullptr);
    }
    TakeAsGiven();
    return {};
}

}  // namespace vistrel::test
