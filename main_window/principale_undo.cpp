// Taking an install back.
#include <algorithm>

#include "controls/menu.h"
#include "core/previous_screens.h"
#include "main_window/principale.h"
#include "platform/message_box.h"
#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

std::string WhyNotBroughtBack(const core::InstallRecord& record, core::UndoResult result) {
    const std::string sentence = "The previous screens cannot be brought back";
    if (result == core::UndoResult::NotWritten)
        return sentence + ", or not all of them. The disk may be full, or a file in use.";
    if (record.areKept) return sentence + ": what was kept of them is gone or has been changed.";
    return sentence + ": they are those of " + record.setName +
           ", which is gone or has been changed.";
}

}  // namespace

core::InstallTargets Principale::Targets() const {
    return {settings_.logoPath, settings_.bootRoot, locations_.windowsDirectory};
}

core::PreviousScreens Principale::Previous() const { return {locations_.programFolder, Targets()}; }

// Whether the screens could be kept or not, the set is installed.
void Principale::KeepScreensBefore(const std::string& newSet) {
    Previous().Keep(InstalledSet().value_or(""), newSet, settings_.synchronizeLogos != 0,
                    companionWanted_);
}

void Principale::CheckUndo() {
    const bool possible = Previous().Last().has_value();
    ActiveBar1.SetEnabled("ToolUndoInstall", possible);
    controls::SetMenuEnabled(classicMenus_, ID_ItmUndoInstall, possible);
}

void Principale::ItmUndoInstall_Click() {
    core::PreviousScreens previous = Previous();
    const auto record = previous.Last();
    // The installed screens are being looked at, and no command for sets is at hand.
    if (!record || savedView_) return;
    if (previous.HaveChangedSince(*record) &&
        !platform::Confirm(handle(),
                           "The screens have been changed since " + record->newName +
                               " was set as default. Would you like to bring back the previous "
                               "ones all the same?",
                           platform::DefaultAnswer::No))
        return;
    const core::UndoResult result = [&] {
        const Doing doing(*this, "Bringing back the previous screens...");
        return previous.BringBack(*record);
    }();
    if (result == core::UndoResult::Done) {
        companionWanted_ = record->companionWanted;
        const bool isListed = std::find(sets_.begin(), sets_.end(), record->setName) != sets_.end();
        SetInstalledSet(isListed ? std::optional(record->setName) : std::nullopt);
    } else {
        LookAgain();
        platform::Tell(handle(), WhyNotBroughtBack(*record, result));
    }
    CheckUndo();
}

}  // namespace vistrel::main_window
