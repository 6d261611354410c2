// Giving sets away and taking them in, as ZIP files.
#include "controls/window_place.h"
#include "core/cm_dialog.h"
#include "core/export_sets.h"
#include "core/generali.h"
#include "core/import_sets.h"
#include "core/library.h"
#include "main_window/names_in_lines.h"
#include "main_window/principale.h"
#include "platform/files.h"
#include "platform/message_box.h"

namespace vistrel::main_window {
namespace {

constexpr const char* kZipFiles = "ZIP files (*.zip)|*.zip|All files (*.*)|*.*";

/// A sentence; empty where all went well.
std::string WhyNotExported(const std::vector<std::string>& names, const std::string& path,
                           const core::ExportOutcome& outcome) {
    switch (outcome.result) {
        case core::ExportResult::NoScreens:
            return "There is nothing to export: " +
                   (names.size() > 1 ? "the selected logo sets have" : names.front() + " has") +
                   " no screens of " + (names.size() > 1 ? "their" : "its") + " own.";
        case core::ExportResult::NotRead:
            if (names.size() == 1) return "A screen of " + names.front() + " cannot be read.";
            return "Nothing has been exported. Screens of these logo sets cannot be read:\r\n" +
                   NamesInLines(outcome.notRead);
        case core::ExportResult::NotWritten:
            return path + " cannot be written. The disk may be full, or the file protected.";
        default:
            return "";
    }
}

}  // namespace

void Principale::ItmExport_Click() {
    const std::vector<std::string> names = SelectedNames();
    if (names.empty()) return;
    const bool several = names.size() > 1;
    const std::string path =
        core::ShowSaveDialog(handle(), kZipFiles, several ? "Export logo sets" : "Export logo set",
                             (several ? "Logo sets" : names.front()) + ".zip", "zip");
    if (path.empty()) return;
    core::ExportOutcome outcome;
    {
        Doing doing(*this, "Exporting " + (several ? "logo sets" : names.front()) + "...");
        outcome = core::ExportSets(settings_.logoPath, names, path,
                                   [&](double share) { return doing.Continue(share); });
    }
    const std::string fault = WhyNotExported(names, path, outcome);
    if (!fault.empty()) platform::Tell(handle(), fault);
}

void Principale::ItmImport_Click() {
    const std::string path =
        core::CutAtNul(core::ShowOpenDialog(handle(), kZipFiles, "Import logo sets", ""));
    if (path.empty()) return;
    const auto last = ImportArchive(path);
    if (!last) return;
    EndInstalledView();
    SelItem(*last);
}

/// Takes the sets of a ZIP file, but those that the user does not want to replace others. The name
/// of the last one taken; empty when there is none.
std::optional<std::string> Principale::ImportArchive(const std::string& path) {
    core::UnpackedSets sets(core::AddBackslash(settings_.logoPath));
    std::string fault;
    {
        std::string file = path;
        Doing doing(*this, "Unpacking " + core::GetFileName(file) + "...");
        fault = sets.Unpack(path, [&](double share) { return doing.Continue(share); });
    }
    if (!fault.empty()) {
        TellOfArchive(path + " " + fault + ".");
        return std::nullopt;
    }
    ShowAllSets();
    std::optional<std::string> last;
    for (std::size_t i = 0; i < sets.Sets().size(); ++i) {
        const std::string& name = sets.Sets()[i].name;
        const bool exists = platform::IsFolder(settings_.logoPath + name);
        if (exists && !ConfirmOverwriting(name)) continue;
        if (!sets.Take(i)) {
            TellOfArchive(name +
                          " cannot be taken into the logo folder. A file of that name may be "
                          "there, or one that is in use.");
            continue;
        }
        // An existing set may have its name in other case, and be new to the list all the same.
        const int listed = MyList.FindItemOfAnyCase(name);
        if (listed < 0) AddSet(name);
        last = listed < 0 ? name : MyList.ItemText(listed);
    }
    ScreensHaveChanged();
    VisualizzaNumLogo();
    return last;
}

void Principale::TellOfArchive(const std::string& text) {
    // The file may come from another window, which is still the one in front.
    controls::BringToFront(handle());
    platform::Tell(handle(), text);
}

}  // namespace vistrel::main_window
