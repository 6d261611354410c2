// What the Logo browser asks of the window that opens it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/locations.h"
#include "core/settings.h"
#include "platform/handles.h"

namespace vistrel::editor {

class EditorHost {
 public:
    virtual ~EditorHost() = default;

    virtual const core::SystemLocations& Locations() const = 0;
    /// The preferences in memory; they are written when the program closes.
    virtual core::Settings& Preferences() = 0;

    /// The names in the list of sets, in its order, and the number of the selected one (from 0; -1
    /// for none).
    virtual std::vector<std::string> SetNames() const = 0;
    virtual int SelectedSet() const = 0;
    /// Reads the logo folder into the list anew ("legge i dati dal disco": reads the data from the
    /// disk), and shows the installed set.
    virtual void LeggiDatiDisco() = 0;
    /// Writes the count line ("visualizza il numero dei logo": shows the number of logos).
    virtual void VisualizzaNumLogo() = 0;

    /// The name of the installed set; empty when none is known.
    virtual std::optional<std::string> InstalledSet() const = 0;
    virtual void SetInstalledSet(const std::optional<std::string>& name) = 0;
    /// The folder of a set has another name now. The list shows it when it is read anew.
    virtual void SetWasRenamed(const std::string& from, const std::string& to) = 0;

    /// Does with a picture what the preferences say: shows it in actual size, or opens it in Paint
    /// or in the custom program. `owner` is the window in front.
    virtual void OpenPicture(const std::string& path, platform::WindowHandle owner) = 0;
    /// The menu of those actions for a picture, and its default item. What is chosen arrives at the
    /// window that pops it up, which hands it to OpenWithCommand: false for a number that is not of
    /// the menu.
    virtual platform::MenuHandle OpenWithMenu(const std::string& path) = 0;
    virtual int DefaultOpenWithItem() const = 0;
    virtual bool OpenWithCommand(int id, platform::WindowHandle owner) = 0;
};

}  // namespace vistrel::editor
