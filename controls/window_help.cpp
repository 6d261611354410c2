// A window's help: the topic of a control, by F1, the question mark or a right click.
#include <windows.h>

#include "controls/menu.h"
#include "controls/window.h"
#include "platform/help_viewer.h"

namespace vistrel::controls {
namespace {

std::string& helpFile() {
    static std::string path;
    return path;
}

bool IsInside(HWND window, Point screen) {
    RECT area{};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return PtInRect(&area, {screen.x, screen.y}) != 0;
}

}  // namespace

void Window::SetHelpFile(const std::string& path) { helpFile() = path; }

const std::string& Window::HelpFile() { return helpFile(); }

void Window::ShowTopic(const Control& control) {
    platform::ShowHelp(control.handle(), HelpFile(), platform::HelpCommand::ContextPopup,
                       static_cast<unsigned long>(control.helpNumber()));
}

bool Window::OnHelp(std::intptr_t lParam) {
    const auto& info = *reinterpret_cast<const HELPINFO*>(lParam);
    if (info.iContextType != HELPINFO_WINDOW) return false;
    const Control* control = ControlOf(static_cast<HWND>(info.hItemHandle));
    if (control && control->helpNumber() != 0)
        ShowTopic(*control);
    else if (helpTopic_ != 0)
        platform::ShowHelp(handle_, HelpFile(), platform::HelpCommand::Context, helpTopic_);
    else
        return false;
    return true;
}

bool Window::OnContextMenu(platform::WindowHandle child, Point screen, bool byKeyboard) {
    Control* control = ControlOf(child);
    // The title bar and the frame have the system's menu.
    if (!control) return !byKeyboard && IsInside(handle_, screen) && Form_ContextMenu(screen);
    if (byKeyboard) screen = control->MenuPoint();
    if (control->ContextMenu) {
        control->ContextMenu(screen, byKeyboard);
        return true;
    }
    if (control->helpNumber() == 0) return false;
    const OwnedMenu menu = NewPopUpMenu();
    AddMenuItem(menu, kWhatsThis, "&What's this?");
    const BOOL chosen = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, 0,
                                       handle_, nullptr);
    if (chosen == kWhatsThis) ShowTopic(*control);
    return true;
}

}  // namespace vistrel::controls
