// A menu bar, a bar of buttons and pop-up menus made from one table of named tools, each of which
// is enabled and checked wherever it stands.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "controls/geometry.h"
#include "controls/owned_handle.h"
#include "platform/handles.h"

namespace vistrel::controls {

class Window;

inline constexpr int kNoPicture = -1;

struct Tool {
    const char* name;
    int id;  ///< number of its WM_COMMAND; 0 for one that only opens a band
    const char* caption;
    const char* tip;  ///< empty for none
    const char* category;
    int image;               ///< place of its picture in the bar's strip, or kNoPicture
    const char* key = "";    ///< the key that does the same, as menus tell it; empty for none
    const char* opens = "";  ///< name of the band that it drops down; empty for none
};

enum class BandKind { MenuBar, DropDown, ButtonBar };

struct Band {
    const char* name;
    BandKind kind;
    std::vector<const char*> tools;  ///< names in order; an empty one is a gap
};

class ActiveBar {
 public:
    ActiveBar(std::vector<Tool> tools, std::span<const Band> bands);
    ActiveBar(const ActiveBar&) = delete;
    ActiveBar& operator=(const ActiveBar&) = delete;

    /// Puts the menu bar on `window` and makes its bar of buttons, a child with number `barId`
    /// whose 16 x 16 pictures come from a bitmap resource with the transparent colour
    /// `transparent`.
    void Attach(Window& window, int barId, int bitmapResource, long transparent);

    bool Enabled(const std::string& tool) const { return StateOf(tool).enabled; }
    void SetEnabled(const std::string& tool, bool enabled);
    bool Checked(const std::string& tool) const { return StateOf(tool).checked; }
    void SetChecked(const std::string& tool, bool checked);

    /// Pops up a drop-down band at a point of the screen.
    void PopUp(const std::string& band, Point screen);
    /// Fits the bar of buttons to the window's width; its height in pixels.
    int Resize();
    platform::WindowHandle bar() const { return bar_; }

    /// A tool was clicked.
    std::function<void(const Tool& tool)> Click;
    /// The user asks to customise the bar; the bar never allows it unless this says so.
    std::function<void(bool& cancel)> PreCustomizeMenu;

    /// For the window: true when `id` is an enabled tool's number, whose Click has then run.
    bool OnCommand(int id);
    /// For the window: a notification of the bar or of its tips.
    std::intptr_t OnNotify(void* header);

    const Tool* ToolOfName(const std::string& name) const;
    /// All of them, those of no band too.
    std::span<const Tool> Tools() const { return tools_; }

 private:
    struct State {
        bool enabled = true;
        bool checked = false;
    };

    const State& StateOf(const std::string& tool) const { return states_.at(tool); }
    platform::MenuHandle MenuOf(const Band& band);
    void MakeButtons(const Band& band, int bitmapResource, long transparent, int barId);

    std::vector<Tool> tools_;
    std::span<const Band> bands_;
    std::map<std::string, State> states_;
    /// The window's own menu bar goes with the window, and the menus that it drops with it; what is
    /// left are drop-down bands that nothing drops.
    std::map<std::string, platform::MenuHandle> menus_;
    Window* window_ = nullptr;
    platform::WindowHandle bar_ = nullptr;
    OwnedImageList images_;
};

}  // namespace vistrel::controls
