// A window's help: the topic of a control, by F1, the question mark or a right click.
#include <windows.h>

#include "controls/window.h"
#include "platform/help_viewer.h"

namespace vistrel {
namespace {

std::string& helpFile() {
    static std::string path;
    return path;
}

}  // namespace

void Window::SetHelpFile(const std::string& path) { helpFile() = path; }

const std::string& Window::HelpFile() { return helpFile(); }

void Window::ShowTopic(const Control& control) {
    ShowHelp(control.handle(), HelpFile(), HelpCommand::ContextPopup,
             static_cast<unsigned long>(control.helpNumber()));
}

bool Window::OnHelp(std::intptr_t lParam) {
    const auto& info = *reinterpret_cast<const HELPINFO*>(lParam);
    if (info.iContextType != HELPINFO_WINDOW) return false;
    const Control* control = ControlOf(static_cast<HWND>(info.hItemHandle));
    if (!control || control->helpNumber() == 0) return false;
    ShowTopic(*control);
    return true;
}

bool Window::OnContextMenu(WindowHandle child, Point screen, bool byKeyboard) {
    Control* control = ControlOf(child);
    if (!control) return !byKeyboard && Form_ContextMenu(screen);
    if (byKeyboard) {
        RECT r{};
        GetWindowRect(control->handle(), &r);
        screen = {static_cast<int>(r.left) + 8, static_cast<int>(r.top) + 8};
    }
    if (control->ContextMenu) {
        control->ContextMenu(screen, byKeyboard);
        return true;
    }
    if (control->helpNumber() == 0) return false;
    const HMENU menu = CreatePopupMenu();
    AppendMenuA(menu, MF_STRING, kWhatsThis, "&What's this?");
    const BOOL chosen = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, 0,
                                       handle_, nullptr);
    DestroyMenu(menu);
    if (chosen == kWhatsThis) ShowTopic(*control);
    return true;
}

}  // namespace vistrel
