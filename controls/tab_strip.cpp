#include "controls/tab_strip.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

namespace vistrel::controls {

void TabStrip::AddTab(const std::string& caption) {
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<char*>(caption.c_str());
    SendPointer(TCM_INSERTITEMA, static_cast<WPARAM>(Count()), &item);
}

int TabStrip::Count() const { return static_cast<int>(Send(TCM_GETITEMCOUNT)); }

int TabStrip::SelectedIndex() const { return static_cast<int>(Send(TCM_GETCURSEL)) + 1; }

void TabStrip::Select(int index) { Send(TCM_SETCURSEL, static_cast<WPARAM>(index - 1)); }

bool TabStrip::TurnPage(int key) {
    if (GetKeyState(VK_CONTROL) >= 0) return false;
    int step = 0;
    if (key == VK_TAB) step = GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
    if (key == VK_PRIOR) step = -1;
    if (key == VK_NEXT) step = 1;
    if (step == 0) return false;
    // From the last to the first and back.
    Select((SelectedIndex() - 1 + step + Count()) % Count() + 1);
    if (Click) Click();
    return true;
}

std::intptr_t TabStrip::OnNotify(void* header) {
    if (static_cast<const NMHDR*>(header)->code == TCN_SELCHANGE && Click) Click();
    return 0;
}

}  // namespace vistrel::controls
