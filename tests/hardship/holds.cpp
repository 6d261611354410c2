#include "tests/hardship/holds.h"

#include <windows.h>

#include <algorithm>
#include <optional>
#include <set>

#include "core/library.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {
namespace {

std::optional<Files> Find(const Library& library, const std::string& name) {
    const auto found = library.find(name);
    return found == library.end() ? std::nullopt : std::optional(found->second);
}

bool HoldsSo(const std::optional<Files>& files, const std::string& name,
             const std::string& contents) {
    return files && files->contains(name) && files->at(name) == contents;
}

/// Each file as before or as after.
bool IsBetween(const std::optional<Files>& before, const std::optional<Files>& after,
               const std::optional<Files>& now) {
    return !now || std::all_of(now->begin(), now->end(), [&](const auto& file) {
        return HoldsSo(before, file.first, file.second) || HoldsSo(after, file.first, file.second);
    });
}

std::string Described(const std::optional<Files>& files) {
    if (!files) return " is gone";
    std::string text = " holds";
    for (const auto& [name, contents] : *files)
        text += " " + name + " (" + std::to_string(contents.size()) + ")";
    return text;
}

/// Names that a set has before and that the same set has after.
std::vector<std::pair<std::string, std::string>> Renamed(const Library& before,
                                                         const Library& after) {
    std::vector<std::pair<std::string, std::string>> renamed;
    for (const auto& [from, files] : before)
        for (const auto& [to, others] : after)
            if (!after.contains(from) && !before.contains(to) && files == others)
                renamed.emplace_back(from, to);
    return renamed;
}

}  // namespace

Holding Look(const Place& place) {
    Holding now{ReadLibrary(place.logos), {}};
    for (const std::string& path : core::InstalledScreenPaths(place.boot, place.windows))
        now.installed[path] = Contents(path).value_or("-");
    return now;
}

std::vector<std::string> Wrongs(const Holding& before, const Holding& after, const Holding& now,
                                const Exceptions& exceptions) {
    std::vector<std::string> wrongs;
    std::set<std::string> names;
    for (const Library* library : {&before.sets, &after.sets, &now.sets})
        for (const auto& [name, files] : *library) names.insert(name);
    for (const std::string& name : names) {
        const auto was = Find(before.sets, name);
        const auto becomes = Find(after.sets, name);
        const auto is = Find(now.sets, name);
        const auto& between = exceptions.inBetween;
        const bool mayBeBetween = std::find(between.begin(), between.end(), name) != between.end();
        if (is == was || is == becomes || (mayBeBetween && IsBetween(was, becomes, is))) continue;
        wrongs.push_back("\"" + name + "\"" + Described(is));
    }
    for (const auto& [from, to] : Renamed(before.sets, after.sets))
        if (now.sets.contains(from) == now.sets.contains(to))
            wrongs.push_back("both or none of \"" + from + "\" and \"" + to + "\"");
    for (const auto& [path, contents] : now.installed) {
        const bool mayBe = exceptions.installedMayBeAbsent && contents == "-";
        if (contents != before.installed.at(path) && contents != after.installed.at(path) && !mayBe)
            wrongs.push_back(path + (contents == "-" ? " is gone" : " is another"));
    }
    return wrongs;
}

std::vector<int> SomeOf(int count, int most) {
    std::vector<int> some;
    if (count <= most || GetEnvironmentVariableA("VISTREL_EVERY_OPERATION", nullptr, 0) > 0) {
        for (int n = 1; n <= count; ++n) some.push_back(n);
        return some;
    }
    for (int i = 0; i < most; ++i) some.push_back(1 + i * (count - 1) / (most - 1));
    return some;
}

}  // namespace vistrel::test
