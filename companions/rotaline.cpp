// Rotaline: installs the next logo set in turn. Returns an Outcome.
#include "companions/change_set.h"
#include "core/library.h"

int main() {
    using namespace vistrel;
    const auto next = [](const std::vector<std::string>& sets, const std::string& installed) {
        return *core::NextLogoSet(sets, installed);
    };
    return static_cast<int>(companions::ChangeLogoSet(next));
}
