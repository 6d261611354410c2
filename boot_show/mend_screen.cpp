#include "boot_show/mend_screen.h"

#include "core/screen_file.h"
#include "pictures/screen/fault_words.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::boot_show {
namespace {

core::MendResult Mend(const std::string& path) {
    const platform::BusyPointer busy;
    return core::MendScreenFile(path);
}

}  // namespace

bool AskAndMend(platform::WindowHandle owner, const std::string& path) {
    const auto faults = core::FaultsOfScreenFile(path);
    if (!core::CanBeMended(faults)) return false;
    if (!platform::Confirm(owner,
                           path + " " + screen::InWords(faults) +
                               ". Would you like to mend it? What is right stays as it is.",
                           platform::DefaultAnswer::Yes))
        return false;
    switch (Mend(path)) {
        case core::MendResult::Mended:
            return true;
        case core::MendResult::NotRead:
            platform::Tell(owner, path + " cannot be mended. There may not be enough memory.");
            return false;
        case core::MendResult::NotWritten:
            break;
    }
    platform::Tell(owner, path +
                              " cannot be written and is as it was. The disk may be full or "
                              "write-protected, or another program may be using the file.");
    return false;
}

}  // namespace vistrel::boot_show
