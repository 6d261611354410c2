// Clicks on the screens, and what is done with the picture that was clicked.
#include "boot_show/frm_boot_show.h"
#include "boot_show/mend_screen.h"
#include "controls/menu.h"
#include "core/generali.h"
#include "core/screen_file.h"
#include "main_window/frm_view.h"
#include "main_window/principale.h"
#include "options/frm_options.h"
#include "platform/message_box.h"
#include "platform/shell.h"
#include "resources/ids.h"

namespace vistrel::main_window {

void Principale::Imag_MouseUp(int index, int button, controls::Point at) {
    if (!Imag[index].HasPicture()) return;
    const std::string& path = Imag[index].Tag();
    if (button == controls::kLeftButton) OpenPicture(path, handle());
    if (button != controls::kRightButton) return;
    const platform::MenuHandle menu = OpenWithMenu(path);
    // Colours move on the startup screen only.
    controls::SetMenuEnabled(menu, ID_ItmMoveColors, index == 0);
    PopUpMenu(menu, Imag[index].OnScreen(at), DefaultOpenWithItem());
}

void Principale::OpenPicture(const std::string& path, platform::WindowHandle owner) {
    currentPicture_ = path;
    AzioneSuImmagine(settings_.defaultAction, owner);
}

platform::MenuHandle Principale::OpenWithMenu(const std::string& path) {
    currentPicture_ = path;
    const platform::MenuHandle menu = ClassicMenu(kMenuOpenWith);
    controls::SetMenuEnabled(menu, ID_ItmMend, core::CanBeMended(core::FaultsOfScreenFile(path)));
    return menu;
}

int Principale::DefaultOpenWithItem() const { return ID_ItmOpenAct + settings_.defaultAction; }

bool Principale::OpenWithCommand(int id, platform::WindowHandle owner) {
    if (id == ID_ItmAnimate)
        SetAnimationShown(!AnimationShown());
    else if (id >= ID_ItmOpenAct && id <= ID_ItmOpenAct + 2)
        AzioneSuImmagine(id - ID_ItmOpenAct, owner);
    else if (id == ID_ItmShowAtStart)
        ShowScreensAtStart();
    else if (id == ID_ItmMend)
        ItmMend_Click(owner);
    else
        return false;
    return true;
}

void Principale::ShowScreensAtStart() {
    boot_show::ShowAsAtStart(handle(),
                             boot_show::ScreensOfSet(Imag[0].Tag(), Imag[1].Tag(), Imag[2].Tag()));
}

void Principale::ItmMend_Click(platform::WindowHandle owner) {
    if (boot_show::AskAndMend(owner, currentPicture_)) AShownScreenWasWritten();
}

void Principale::AShownScreenWasWritten() {
    RedrawScreens();
    ShowFaults();
    ScreensHaveChanged();
    LookAgain();
}

bool Principale::AnimationShown() const { return MenuMark(ID_ItmAnimate); }

void Principale::SetAnimationShown(bool shown) {
    controls::SetMenuMark(classicMenus_, ID_ItmAnimate, shown);
}

void Principale::ShowCustomProgramName() {
    controls::SetMenuCaption(
        classicMenus_, ID_ItmOpenAct + 2,
        settings_.customProgName.empty() ? "Custom Program" : settings_.customProgName);
}

void Principale::AzioneSuImmagine(int index, platform::WindowHandle owner) {
    if (index == 0) ShowActualSize(owner);
    if (index == 1) OpenPaint(owner);
    if (index == 2) OpenCustomProgram(owner);
}

void Principale::ShowActualSize(platform::WindowHandle owner) {
    FrmView view(currentPicture_, AnimationShown());
    view.ShowModal(owner);
}

void Principale::OpenPaint(platform::WindowHandle owner) {
    if (platform::StartProgram(locations_.windowsDirectory + "pbrush.exe " +
                               core::CutAtNul(core::GetShortPath(currentPicture_))))
        return;
    platform::Tell(
        owner,
        "Cannot find Paint! If you want to edit your logos install it from Add/Remove Software "
        "from the Control Panel.");
}

void Principale::OpenCustomProgram(platform::WindowHandle owner) {
    const std::string& program = settings_.customProgPath;
    if (core::FileExists(program)) {
        platform::StartProgram(program + " " + core::CutAtNul(core::GetShortPath(currentPicture_)));
    } else if (!program.empty()) {
        platform::Tell(owner, "Cannot find the file " + program +
                                  " or it is not an executable file. Check it out and retry.");
    } else if (platform::Confirm(
                   owner, "You haven't specified a custom program. Would you like to do it now?",
                   platform::DefaultAnswer::Yes)) {
        options::FrmOptions options(*this, options::FrmOptions::kImages);
        ShowPreferences(options, owner);
    }
}

}  // namespace vistrel::main_window
