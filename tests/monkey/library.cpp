#include "tests/monkey/library.h"

#include <windows.h>

#include <algorithm>

#include "tests/support/machine/machine.h"

namespace vistrel::test {
namespace {

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// The names of sets in one library that the other has not, with what they hold.
std::multimap<Files, std::string> SetsOnlyIn(const Library& library, const Library& other) {
    std::multimap<Files, std::string> only;
    for (const auto& [name, files] : library)
        if (!name.empty() && !other.contains(name)) only.emplace(files, name);
    return only;
}

/// A set that is gone and one that has come with the same files are one that has another name.
int TakeOutRenamed(std::multimap<Files, std::string>& gone,
                   std::multimap<Files, std::string>& come) {
    int renamed = 0;
    for (auto set = gone.begin(); set != gone.end();) {
        const auto same = come.find(set->first);
        if (same == come.end()) {
            ++set;
            continue;
        }
        come.erase(same);
        set = gone.erase(set);
        ++renamed;
    }
    return renamed;
}

std::string NamesOfDifferences(const Files& before, const Files& now) {
    std::string names;
    for (const auto& [name, contents] : before)
        if (!now.contains(name))
            names += " -" + name;
        else if (now.at(name) != contents)
            names += " !" + name;
    for (const auto& [name, contents] : now)
        if (!before.contains(name)) names += " +" + name;
    return names;
}

std::string NamesOf(const std::multimap<Files, std::string>& sets) {
    std::string names;
    for (const auto& [files, name] : sets) names += " \"" + name + "\"";
    return names;
}

bool IsAScreenOf(const std::string& contents, const Library& library) {
    return std::any_of(library.begin(), library.end(), [&](const auto& set) {
        return std::any_of(set.second.begin(), set.second.end(),
                           [&](const auto& file) { return file.second == contents; });
    });
}

}  // namespace

Library ReadLibrary(const std::string& folder) {
    Library library;
    for (const std::string& name : NamesIn(folder)) {
        if (!IsFolder(folder + name)) {
            library[""][name] = Contents(folder + name).value_or("?");
            continue;
        }
        Files& files = library[name];
        for (const std::string& file : NamesIn(folder + name + "\\"))
            files[file] = Contents(folder + name + "\\" + file).value_or("?");
    }
    return library;
}

Permits& Permits::operator|=(const Permits& more) {
    renamed += more.renamed;
    removed += more.removed;
    added += more.added;
    changed |= more.changed;
    installed |= more.installed;
    return *this;
}

std::vector<std::string> UnaskedChanges(const Library& before, const Library& after,
                                        const Permits& permits) {
    std::vector<std::string> unasked;
    auto gone = SetsOnlyIn(before, after);
    auto come = SetsOnlyIn(after, before);
    const int renamed = TakeOutRenamed(gone, come);
    // A set may be added and its model deleted, which looks like a new name.
    const int asNew = std::min(permits.removed, permits.added);
    if (renamed > permits.renamed + asNew)
        unasked.push_back(std::to_string(renamed) + " sets have another name");
    // Who changes a set and then its name has made another one.
    const int remade = permits.changed ? permits.renamed : 0;
    if (static_cast<int>(gone.size()) > permits.removed + remade)
        unasked.push_back("gone:" + NamesOf(gone));
    if (static_cast<int>(come.size()) > permits.added + remade)
        unasked.push_back("new:" + NamesOf(come));
    for (const auto& [name, files] : before) {
        const auto now = after.find(name);
        if (now != after.end() && now->second != files && !permits.changed)
            unasked.push_back("changed: \"" + name + "\"" + NamesOfDifferences(files, now->second));
    }
    return unasked;
}

std::vector<std::string> UnaskedInstalls(const Files& before, const Files& after,
                                         const std::vector<const Library*>& libraries,
                                         const Permits& permits) {
    std::vector<std::string> unasked;
    for (const auto& [path, contents] : after) {
        if (contents == before.at(path)) continue;
        const bool known = contents == "-" ||
                           std::any_of(libraries.begin(), libraries.end(),
                                       [&](const Library* l) { return IsAScreenOf(contents, *l); });
        if (!permits.installed)
            unasked.push_back(path + " has changed");
        else if (!known)
            unasked.push_back(path + " holds what was in no set");
    }
    return unasked;
}

}  // namespace vistrel::test
