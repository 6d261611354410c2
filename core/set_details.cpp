#include "core/set_details.h"

#include <algorithm>
#include <vector>

#include "core/generali.h"
#include "pictures/file.h"
#include "pictures/screen/any_indices.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

constexpr int kColors = 256;
/// A bitmap's two headers.
constexpr std::size_t kHeadOfScreen = 54;

int MovingColorsOf(const std::string& screen) {
    const auto head = pictures::ReadStartOfFile(screen, kHeadOfScreen);
    const std::uint32_t first = head ? screen::FirstAnimated(*head) : 0;
    return first > 0 && first < kColors ? kColors - static_cast<int>(first) : 0;
}

}  // namespace

SetDetails DetailsOf(const LogoSet& set) {
    SetDetails details;
    const auto counting = kScreenFileNames.begin() + (set.IsSingle() ? 1 : 3);
    platform::ForEachEntry(set.Folder() + "LOGO*.SYS", [&](const platform::FolderEntry& entry) {
        const auto screen = std::find(kScreenFileNames.begin(), counting, UpperCase(entry.name));
        if (entry.IsFolder() || screen == counting) return true;
        details.has[static_cast<std::size_t>(screen - kScreenFileNames.begin())] = true;
        details.modified = std::max(details.modified, entry.modified);
        details.size += entry.size;
        return true;
    });
    if (details.has[0]) details.movingColors = MovingColorsOf(set.Screens()[0]);
    return details;
}

std::string ScreensInWords(const SetDetails& details) {
    static const char* const kWords[] = {"startup", "wait", "shutdown"};
    std::string words;
    for (std::size_t i = 0; i < details.has.size(); ++i)
        if (details.has[i]) words += (words.empty() ? "" : ", ") + std::string(kWords[i]);
    if (!words.empty()) words[0] = static_cast<char>(words[0] - 'a' + 'A');
    return words;
}

}  // namespace vistrel::core
