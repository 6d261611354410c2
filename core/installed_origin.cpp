#include "core/installed_origin.h"

#include <algorithm>
#include <bit>
#include <cctype>

#include "core/library.h"
#include "platform/clock.h"
#include "platform/file_contents.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

constexpr unsigned kStartup = 1;
constexpr unsigned kAllScreens = 7;
constexpr const char* kScreenWords[] = {"startup", "wait", "shutdown"};

/// Nothing when there is no file of that name.
std::optional<std::uint64_t> SizeOf(const std::string& path) {
    std::optional<std::uint64_t> size;
    platform::ForEachEntry(path, [&](const platform::FolderEntry& entry) {
        if (!entry.IsFolder()) size = entry.size;
        return false;
    });
    return size;
}

/// "startup, wait and shutdown screens".
std::string InWords(unsigned screens) {
    std::string text;
    int left = std::popcount(screens);
    const char* ending = left == 1 ? " screen" : " screens";
    for (int i = 0; i < 3; ++i) {
        if ((screens >> i & 1) == 0) continue;
        text += kScreenWords[i];
        --left;
        if (left > 0) text += left == 1 ? " and " : ", ";
    }
    return text + ending;
}

}  // namespace

InstalledOrigin::InstalledOrigin(InstallTargets targets, std::vector<std::string> sets)
    : targets_(std::move(targets)),
      installed_(InstalledScreenPaths(targets_.bootRoot, targets_.windowsDirectory)),
      sets_(std::move(sets)) {
    for (int i = 0; i < 3; ++i) {
        sizes_[i] = SizeOf(installed_[i]);
        if (sizes_[i]) present_ |= 1u << i;
    }
    if (present_ == 0) sets_.clear();
}

bool InstalledOrigin::CompareFor(double seconds) {
    const double begun = platform::SecondsSinceMidnight();
    while (!IsDone()) {
        CompareNext();
        const double passed = platform::SecondsSinceMidnight() - begun;
        // At midnight the clock goes backwards.
        if (passed < 0 || passed >= seconds) break;
    }
    return !IsDone();
}

void InstalledOrigin::CompareNext() {
    const LogoSet set{targets_.logoFolder, sets_[next_++]};
    const auto files = set.Screens();
    Screens alike = AlikeIn(files[0], 0);
    alike |= set.IsSingle() ? AlikeInLibrary() : AlikeIn(files[1], 1) | AlikeIn(files[2], 2);
    if (alike == kAllScreens) whole_ = set.name;
    const Screens own = alike & present_ & (set.IsSingle() ? kStartup : kAllScreens);
    if (own != 0) matches_.push_back({set.name, own});
}

/// The screen's bit when the file is the installed one's like, or neither of them is there.
InstalledOrigin::Screens InstalledOrigin::AlikeIn(const std::string& file, int screen) const {
    const bool alike = SizeOf(file) == sizes_[screen] &&
                       (!sizes_[screen] || platform::SameContents(file, installed_[screen]));
    return alike ? 1u << screen : 0;
}

/// Compared once, however many single-logo sets there are.
InstalledOrigin::Screens InstalledOrigin::AlikeInLibrary() {
    if (!alikeInLibrary_) {
        const auto files = ScreensIn(targets_.logoFolder);
        alikeInLibrary_ = AlikeIn(files[1], 1) | AlikeIn(files[2], 2);
        const Screens shared = *alikeInLibrary_ & present_;
        if (shared != 0) matches_.push_back({"the single-logo sets", shared});
    }
    return *alikeInLibrary_;
}

/// Who has most of what is left comes first.
std::array<std::string, 3> InstalledOrigin::Sources() const {
    std::array<std::string, 3> sources = {"none", "none", "none"};
    Screens left = present_;
    for (;;) {
        const auto fewer = [left](const Match& a, const Match& b) {
            return std::popcount(a.screens & left) < std::popcount(b.screens & left);
        };
        const auto best = std::max_element(matches_.begin(), matches_.end(), fewer);
        if (best == matches_.end() || (best->screens & left) == 0) return sources;
        for (int i = 0; i < 3; ++i)
            if ((best->screens & left) >> i & 1) sources[i] = best->source;
        left &= ~best->screens;
    }
}

std::string InstalledOrigin::Sentence() const {
    if (present_ == 0) return "No screens are installed";
    if (!whole_.empty()) return "Installed: " + whole_;
    const auto sources = Sources();
    std::string sentence;
    Screens left = present_;
    for (int i = 0; i < 3; ++i) {
        Screens same = 0;
        for (int j = i; j < 3; ++j)
            if ((left >> j & 1) && sources[j] == sources[i]) same |= 1u << j;
        if ((same >> i & 1) == 0) continue;
        if (!sentence.empty()) sentence += ", ";
        sentence += InWords(same) + " of " + sources[i];
        left &= ~same;
    }
    sentence[0] = static_cast<char>(std::toupper(sentence[0]));
    return sentence;
}

}  // namespace vistrel::core
