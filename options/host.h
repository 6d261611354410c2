// What the preferences dialog asks of the window that opens it.
#pragma once

#include <cstdint>

#include "core/locations.h"
#include "core/settings.h"

namespace vistrel::options {

class OptionsHost {
 public:
    virtual ~OptionsHost() = default;

    virtual const core::SystemLocations& Locations() const = 0;
    /// The preferences in memory; they are written when the program closes.
    virtual core::Settings& Preferences() = 0;
    /// Reads the logo folder into the list anew ("legge i dati dal disco": reads the data from the
    /// disk), and shows the installed set.
    virtual void LeggiDatiDisco() = 0;
    /// Captions the custom program's menu item: its name, or "Custom Program" for an empty one.
    virtual void ShowCustomProgramName() = 0;
    /// Sets the mark of "Autoshow animation".
    virtual void SetAnimationShown(bool shown) = 0;

    /// The boot-logo option, written back at close when it was changed.
    virtual std::int16_t BootLogoOption() const = 0;
    virtual void SetBootLogoOption(std::int16_t option) = 0;
    virtual void RaiseBootLogoOptionChanged() = 0;
};

}  // namespace vistrel::options
