// Writes the shell links of Rotaline and Shufflet into the folder that holds the programs: Vistrel
// copies one of them into the Startup folder. An installation that makes links itself needs it not;
// whoever unpacked the programs by hand starts it once.
// Usage: make_links [FOLDER], by default its own folder. Returns 0 when both were written.
#include <string>

#include "core/generali.h"
#include "core/locations.h"
#include "platform/shell.h"

int main(int count, char** arguments) {
    using namespace vistrel;
    if (count > 2) return 1;
    const std::string folder =
        count == 2 ? AddBackslash(arguments[1]) : FindSystemLocations().programFolder;
    const auto link = [&](const std::string& name, const std::string& description) {
        return WriteShellLink(folder + name + ".lnk", folder + name + ".exe", "", folder,
                              description);
    };
    const bool rotaline = link("Rotaline", "Installs the next logo set in turn");
    const bool shufflet = link("Shufflet", "Installs a logo set at random");
    return rotaline && shufflet ? 0 : 2;
}
