#include "controls/active_bar.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <utility>

#include "controls/win32.h"
#include "controls/window.h"
#include "platform/instance.h"

namespace vistrel::controls {
namespace {

/// What a menu shows for a tool: its caption and, at the right, its key.
std::string MenuTextOf(const Tool& tool) {
    std::string text = tool.caption;
    if (*tool.key) text += std::string("\t") + tool.key;
    return text;
}

}  // namespace

ActiveBar::ActiveBar(std::vector<Tool> tools, std::span<const Band> bands)
    : tools_(std::move(tools)), bands_(bands) {
    for (const Tool& tool : tools_) states_[tool.name] = {};
}

const Tool* ActiveBar::ToolOfName(const std::string& name) const {
    for (const Tool& tool : tools_)
        if (name == tool.name) return &tool;
    return nullptr;
}

platform::MenuHandle ActiveBar::MenuOf(const Band& band) {
    if (const auto made = menus_.find(band.name); made != menus_.end()) return made->second;
    const HMENU menu = band.kind == BandKind::MenuBar ? CreateMenu() : CreatePopupMenu();
    menus_[band.name] = menu;
    for (const char* name : band.tools) {
        if (!*name) {
            AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
            continue;
        }
        const Tool& tool = *ToolOfName(name);
        const Band* opened = nullptr;
        for (const Band& other : bands_)
            if (std::string(tool.opens) == other.name) opened = &other;
        if (opened)
            AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(MenuOf(*opened)), tool.caption);
        else
            AppendMenuA(menu, MF_STRING, static_cast<UINT_PTR>(tool.id), MenuTextOf(tool).c_str());
    }
    return menu;
}

void ActiveBar::MakeButtons(const Band& band, int bitmapResource, long transparent, int barId) {
    bar_ = CreateWindowExA(0, TOOLBARCLASSNAMEA, "",
                           WS_CHILD | WS_VISIBLE | TBSTYLE_TOOLTIPS | TBSTYLE_FLAT, 0, 0, 0, 0,
                           window_->handle(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(barId)),
                           platform::ProgramInstance(), nullptr);
    SendMessageA(bar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    images_ = ImageList_LoadImageA(platform::ProgramInstance(), MAKEINTRESOURCEA(bitmapResource),
                                   16, 0, static_cast<COLORREF>(transparent), IMAGE_BITMAP, 0);
    SendMessageA(bar_, TB_SETBITMAPSIZE, 0, MAKELPARAM(16, 16));
    SendMessageA(bar_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.get()));
    for (const char* name : band.tools) {
        TBBUTTON button{};
        if (const Tool* tool = ToolOfName(name)) {
            button.iBitmap = tool->image;
            button.idCommand = tool->id;
            button.fsState = TBSTATE_ENABLED;
            button.fsStyle = TBSTYLE_BUTTON;
        } else {
            button.fsStyle = TBSTYLE_SEP;
        }
        SendMessageA(bar_, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&button));
    }
    // Some versions of the bar make its tips only when they are asked for.
    SendMessageA(bar_, TB_GETTOOLTIPS, 0, 0);
    Resize();
}

void ActiveBar::Attach(Window& window, int barId, int bitmapResource, long transparent) {
    window_ = &window;
    for (const Band& band : bands_) {
        if (band.kind == BandKind::ButtonBar)
            MakeButtons(band, bitmapResource, transparent, barId);
        else if (band.kind == BandKind::MenuBar)
            SetMenu(window.handle(), MenuOf(band));
        else
            MenuOf(band);
    }
}

void ActiveBar::SetEnabled(const std::string& tool, bool enabled) {
    // Asked for at each of thousands of sets that are selected at once.
    if (std::exchange(states_[tool].enabled, enabled) == enabled) return;
    const Tool& t = *ToolOfName(tool);
    const UINT state = enabled ? MF_ENABLED : MF_GRAYED;
    if (t.id) {
        SendMessageA(bar_, TB_ENABLEBUTTON, static_cast<WPARAM>(t.id), MAKELPARAM(enabled, 0));
        for (const auto& [name, menu] : menus_)
            EnableMenuItem(menu, static_cast<UINT>(t.id), MF_BYCOMMAND | state);
        return;
    }
    // A tool that opens a band has no number in its menu: its place tells it.
    for (const Band& band : bands_)
        for (std::size_t place = 0; place < band.tools.size(); ++place)
            if (tool == band.tools[place])
                EnableMenuItem(menus_[band.name], static_cast<UINT>(place), MF_BYPOSITION | state);
    DrawMenuBar(window_->handle());
}

void ActiveBar::SetChecked(const std::string& tool, bool checked) {
    states_[tool].checked = checked;
    const auto id = static_cast<UINT>(ToolOfName(tool)->id);
    SendMessageA(bar_, TB_CHECKBUTTON, id, MAKELPARAM(checked, 0));
    for (const auto& [name, menu] : menus_)
        CheckMenuItem(menu, id, checked ? MF_CHECKED : MF_UNCHECKED);
}

void ActiveBar::PopUp(const std::string& band, Point screen) {
    window_->PopUpMenu(menus_.at(band), screen);
}

int ActiveBar::Resize() {
    SendMessageA(bar_, TB_AUTOSIZE, 0, 0);
    return PlaceOnScreen(bar_).height;
}

bool ActiveBar::OnCommand(int id) {
    for (const Tool& tool : tools_) {
        if (tool.id != id) continue;
        // A number that comes from elsewhere finds the tool as a user would: greyed or not.
        if (StateOf(tool.name).enabled && Click) Click(tool);
        return true;
    }
    return false;
}

std::intptr_t ActiveBar::OnNotify(void* header) {
    const auto& h = *static_cast<const NMHDR*>(header);
    if (h.code == TTN_NEEDTEXTA) {
        auto& text = *static_cast<TOOLTIPTEXTA*>(header);
        for (const Tool& tool : tools_)
            if (tool.id == static_cast<int>(h.idFrom)) text.lpszText = const_cast<char*>(tool.tip);
        return 0;
    }
    if (h.code == TBN_QUERYINSERT || h.code == TBN_QUERYDELETE || h.code == TBN_BEGINADJUST) {
        bool cancel = true;
        if (PreCustomizeMenu) PreCustomizeMenu(cancel);
        return cancel ? FALSE : TRUE;
    }
    return 0;
}

}  // namespace vistrel::controls
