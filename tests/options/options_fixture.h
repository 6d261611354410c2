// The preferences dialog in front of a user, on a machine of its own.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "options/frm_options.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

/// Stands for the main window: keeps what the dialog tells it.
class RecordingMain : public options::OptionsHost {
 public:
    explicit RecordingMain(core::SystemLocations locations) : locations_(std::move(locations)) {}

    const core::SystemLocations& Locations() const override { return locations_; }
    core::Settings& Preferences() override { return settings; }
    void LeggiDatiDisco() override { ++scans; }
    void ShowCustomProgramName() override { customCaption = settings.customProgName; }
    void SetAnimationShown(bool shown) override { animation = shown; }
    std::int16_t BootLogoOption() const override { return bootOption; }
    void SetBootLogoOption(std::int16_t option) override { bootOption = option; }
    void RaiseBootLogoOptionChanged() override { bootOptionChanged = true; }

    core::Settings settings;
    int scans = 0;
    std::string customCaption = "never set";
    bool animation = false;
    std::int16_t bootOption = 1;
    bool bootOptionChanged = false;

 private:
    core::SystemLocations locations_;
};

class Preferences : public Machine {
 protected:
    Preferences();

    /// Opens the dialog, lets `user` act on a thread of its own, and returns when it is closed; a
    /// dialog that is still open is cancelled.
    void WithDialog(const std::function<void(options::FrmOptions&)>& user,
                    options::FrmOptions::Page first = options::FrmOptions::kGeneral);
    static void ClickTab(options::FrmOptions& options, int number);
    /// The window of the dialog's thread that has the focus.
    static HWND FocusOf(options::FrmOptions& options);
    static bool HasFocus(options::FrmOptions& options, const controls::Control& control);
    static bool PageIsShown(options::FrmOptions& options, int number);
    static void PressOk(options::FrmOptions& options);
    /// Gives a dialog's control the focus, as the tab key would.
    static void SetFocusOn(HWND dialog, HWND control);

    RecordingMain main;
};

}  // namespace vistrel::test
