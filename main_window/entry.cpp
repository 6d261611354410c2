// Where the program starts: what it needs to know, the splash screen, the main window.
#include <windows.h>

#include "about/frm_splash.h"
#include "controls/message_loop.h"
#include "core/generali.h"
#include "core/locations.h"
#include "core/running_instance.h"
#include "core/settings.h"
#include "core/startup_action.h"
#include "main_window/principale.h"
#include "pictures/imgdll.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/message_box.h"

namespace vistrel::main_window {
namespace {

/// The image library is our own and asks for no code.
constexpr const char* kImageLibraryCode = "";

void Run() {
    platform::FailOnDrivesNotReady();
    core::OnlyCopy onlyCopy;
    if (!onlyCopy.Take()) return;
    const core::SystemLocations locations = core::FindSystemLocations();
    core::MakeMissingLinks(locations.programFolder, core::GetStartupFolder());
    controls::Window::SetHelpFile(locations.HelpFile());
    pictures::ImgDLLStringInitDLL(kImageLibraryCode);

    about::frmSplash splash;
    const bool showSplash = core::ReadShowSplashScreen() == 1;
    double shownAt = 0;
    if (showSplash && splash.Create(nullptr)) {
        splash.Show();
        splash.PaintAtOnce();
        shownAt = platform::TimeOfDay();
    }

    Principale principale(locations);
    if (!principale.Create(nullptr)) {
        return platform::Tell(nullptr,
                              "Vistrel cannot be started. There may not be enough memory.");
    }

    if (splash.IsOpen()) {
        const double wait = about::SplashWait(shownAt, platform::TimeOfDay());
        if (wait > 0) platform::SleepMilliseconds(static_cast<unsigned long>(wait));
        splash.Unload();
    }
    principale.Show();
    controls::RunLoopWhileOpen(principale);
}

}  // namespace
}  // namespace vistrel::main_window

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    vistrel::main_window::Run();
    return 0;
}
