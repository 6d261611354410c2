#include "core/screen_file.h"

#include "core/generali.h"
#include "core/replacing.h"
#include "pictures/file.h"
#include "pictures/screen/mend.h"
#include "platform/files.h"

namespace vistrel::core {

bool IsScreenName(const std::string& name) { return UpperEnding(name) == ".SYS"; }

std::vector<screen::ScreenFault> FaultsOfScreenFile(const std::string& path) {
    if (!IsScreenName(path)) return {};
    const auto file = pictures::ReadWholeFile(path);
    return file ? screen::FaultsOfScreen(*file) : std::vector<screen::ScreenFault>{};
}

bool CanBeMended(const std::vector<screen::ScreenFault>& faults) {
    return !faults.empty() && faults.front() != screen::ScreenFault::NotABitmap;
}

MendResult MendScreenFile(const std::string& path) {
    const auto attributes = platform::FileAttributes(path);
    const auto file = pictures::ReadWholeFile(path);
    const auto mended = file ? screen::MendScreen(*file) : std::nullopt;
    if (!attributes || !mended) return MendResult::NotRead;
    // Screens in their places are often read-only, and so are copies from a CD-ROM.
    platform::SetAttributes(path, platform::kNormalFile);
    const bool written = WriteOver(path, *mended);
    platform::SetAttributes(path, *attributes);
    return written ? MendResult::Mended : MendResult::NotWritten;
}

}  // namespace vistrel::core
