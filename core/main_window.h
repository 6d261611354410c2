// What the other windows may ask of the main window.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/locations.h"
#include "core/settings.h"
#include "platform/handles.h"

namespace vistrel::core {

class MainWindow {
 public:
    virtual ~MainWindow() = default;

    virtual const SystemLocations& Locations() const = 0;
    /// The preferences in memory; they are written when the program closes.
    virtual Settings& Preferences() = 0;

    /// The names in the list of sets, in its order, and the number of the selected one (from 0; -1
    /// for none).
    virtual std::vector<std::string> SetNames() const = 0;
    virtual int SelectedSet() const = 0;
    /// Reads the logo folder into the list anew ("legge i dati dal disco": reads the data from the
    /// disk), and shows the installed set.
    virtual void LeggiDatiDisco() = 0;
    /// Writes the count line ("visualizza il numero dei logo": shows the number of logos).
    virtual void VisualizzaNumLogo() = 0;

    /// What the label of the installed set shows: its name, or kUnknownSet.
    virtual std::string CurrentSet() const = 0;
    virtual void SetCurrentSet(const std::string& name) = 0;

    /// Makes a picture the current one and acts on it ("azione sull'immagine": action on the
    /// picture): 0 shows it in actual size, 1 opens Paint, 2 the custom program. `owner` is the
    /// window in front.
    virtual void SetCurrentPicture(const std::string& path) = 0;
    virtual void AzioneSuImmagine(int index, platform::WindowHandle owner) = 0;
    /// The menu of those actions and its default item. What is chosen arrives at the window that
    /// pops it up, which hands it to OpenWithCommand: false for a number that is not of the menu.
    virtual platform::MenuHandle OpenWithMenu() = 0;
    virtual int DefaultOpenWithItem() const = 0;
    virtual bool OpenWithCommand(int id, platform::WindowHandle owner) = 0;
    /// Captions the custom program's menu item: its name, or "Custom Program" for an empty one.
    virtual void ShowCustomProgramName() = 0;
    /// The mark of "Autoshow animation".
    virtual bool AnimationShown() const = 0;
    virtual void SetAnimationShown(bool shown) = 0;

    /// The boot-logo option, written back at close when it was changed.
    virtual std::int16_t BootLogoOption() const = 0;
    virtual void SetBootLogoOption(std::int16_t option) = 0;
    virtual void RaiseBootLogoOptionChanged() = 0;
};

}  // namespace vistrel::core
