#include "animate/read_screen.h"

#include "pictures/file.h"
#include "pictures/screen/mend.h"

namespace vistrel::animate {

std::optional<screen::IndexedScreen> ReadScreen(const std::string& path) {
    const auto file = pictures::ReadWholeFile(path);
    if (!file) return std::nullopt;
    const auto mended = screen::MendScreen(*file);
    return mended ? screen::ReadIndexedScreen(*mended) : std::nullopt;
}

}  // namespace vistrel::animate
