// A top-level window made from a dialog template: it holds its controls, passes their events on and
// is shown beside others or, modally, in front of its owner.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "controls/control.h"
#include "controls/geometry.h"
#include "platform/handles.h"

namespace vistrel::controls {

class Timer;

/// A row of a window's table of controls: all that is said of a control once.
struct Part {
    Control& control;
    int id;                  ///< number of its child window
    unsigned long help = 0;  ///< number of the topic that says what it is for; 0 for none
    const char* tip = "";
};

class Window {
 public:
    /// `className` is the window class that the template names; `templateId` the template's number.
    Window(const char* className, int templateId);
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Makes the real window with its controls, not yet visible, and runs Form_Load. False when the
    /// system refuses or the template lacks a control; there is no window then.
    bool Create(platform::WindowHandle owner);
    void Show();
    /// Makes the window and shows it in front of `owner`, which is disabled until it is closed.
    /// False when it could not be made.
    bool ShowInFront(platform::WindowHandle owner);
    /// The same, and returns when it has been closed.
    void ShowModal(platform::WindowHandle owner);
    /// Closes the window unless Form_Unload refuses. False when it did.
    bool Unload();

    platform::WindowHandle handle() const { return handle_; }
    bool IsOpen() const { return handle_ != nullptr; }
    /// False while a window in front of it waits for the user.
    bool IsEnabled() const;
    /// The control with this number; null when the window has none.
    Control* Find(int id) const;
    /// The control seen at a point of the screen; null when there is none of this window's.
    Control* ControlAt(Point screen) const;
    const std::map<int, Control*>& controls() const { return controls_; }

    Size ClientSize() const;
    /// Size with title bar and frame.
    Size WholeSize() const;
    /// Makes the window as large as its client area must be for this.
    void SetClientSize(Size size);
    /// Puts the window into the middle of a part of the screen.
    void CentreIn(const Rect& area);
    /// The same, and makes the window no larger than that part.
    void FitInto(const Rect& area);
    /// Has the window painted anew with all its controls.
    void RepaintAll();
    /// Paints the window and its controls now, not when messages have been handled.
    void PaintAtOnce();
    /// Shows a short text when the pointer rests on a child window; an empty text takes it away.
    void ShowTip(platform::WindowHandle child, const std::string& tip);
    /// Pops up a menu at a point of the screen; what is chosen arrives at MenuCommand.
    /// `defaultItem` is shown in bold; 0 for none.
    void PopUpMenu(platform::MenuHandle menu, Point screen, int defaultItem = 0);

    /// Pops up a menu under a button, above it where the screen has no room below.
    void PopUpMenuAt(const Control& button, platform::MenuHandle menu);

    /// Ends what the user edits within a control, taken as typed. Every command does this first,
    /// and so do the closing, a press on a control and a window that opens in front: the edit may
    /// rename what they are about.
    void EndEdits();

    /// Sees each of the window's messages before the dialog manager; see message_loop.h. True when
    /// a key is dealt with.
    bool HandleKey(const void* message);
    /// False for a window in which Tab, Enter and Esc are keys like any other.
    virtual bool HasDialogKeys() const { return true; }

    /// The file whose topics the help numbers of controls name.
    static void SetHelpFile(const std::string& path);
    static const std::string& HelpFile();

 protected:
    /// Ties a member to the child window with number `id`.
    void Add(Control& control, int id);
    void Add(Timer& timer);
    /// Ties each member of a table to its child window, its help and its tip.
    void AddParts(std::span<const Part> parts);

    virtual void Form_Load() {}
    /// The window was shown, or became the active one again after a window of ours in front of it
    /// was closed. The system's dialogs and other programs in between do not count.
    virtual void Form_Activate() {}
    /// Another program has come to the front.
    virtual void Form_ProgramLeft() {}
    /// The display has another size or other colours than before.
    virtual void Form_DisplayChange() {}
    /// Called when the window is about to close; false keeps it open.
    virtual bool Form_Unload() { return true; }
    virtual void Form_Resize(Size) {}
    virtual void Form_Paint(platform::DeviceContext) {}
    /// The system asks whether its session may end, and waits: the last moment at which the user
    /// can be asked. False keeps the session going.
    virtual bool MayEndSession() { return true; }
    /// The session ends, and the program with it: keeps what the user would lose. Nothing may be
    /// shown any more.
    virtual void SessionEnds() { Form_Unload(); }
    /// A key went down, in whatever control; true when nobody else is to hear of it.
    virtual bool Form_KeyDown(int) { return false; }
    virtual void Form_KeyUp(int) {}
    virtual void Form_KeyPress(char) {}
    /// The wheel was turned by this much, 120 a notch, away from the user above 0, with the pointer
    /// at a point of the screen. False leaves it to the system.
    virtual bool Form_MouseWheel(int, Point) { return false; }
    /// A menu item, a tool or, without a control of that number, a dialog command (1 Enter, 2 Esc).
    virtual void MenuCommand(int) {}
    /// The right button was clicked within the window beside the controls. False leaves it to the
    /// system.
    virtual bool Form_ContextMenu(Point) { return false; }
    /// A menu is about to open.
    virtual void MenuOpens(platform::MenuHandle) {}
    /// A notification of a child window that is no Control, a toolbar for instance.
    virtual std::intptr_t OnNotify(void*) { return 0; }
    /// The smallest size of the whole window that the user can drag it to.
    virtual Size SmallestSize() const { return {0, 0}; }

    /// The topic of the help that F1 shows where no control has one of its own.
    void SetHelpTopic(unsigned long number) { helpTopic_ = number; }

    /// Closes the window once what is being handled is done, where closing at once would come in
    /// the way of the system.
    void CloseSoon();

    /// Gives the focus to a control; a button becomes the one that Enter presses.
    void GiveFocus(const Control& control);
    /// The same to the control at which the tab key stops behind this one.
    void FocusNextTo(const Control& control);

    /// Converts dialog units of this window's font to pixels.
    Rect FromDialogUnits(const Rect& units) const;

 private:
    friend struct WindowProcedure;
    friend void EndSession();

    void TrackMenu(platform::MenuHandle menu, Point screen, unsigned align);
    bool AttachControls();
    void FreeOwner();
    void OnDestroy();

    // A message each. True when it was dealt with; `result` is then the answer to the system, where
    // it wants one.
    bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                   std::intptr_t& result);
    bool OnCommand(std::uintptr_t wParam, std::intptr_t lParam);
    bool OnNotification(std::intptr_t lParam, std::intptr_t& result);
    bool OnScroll(std::intptr_t lParam);
    bool OnStaticColor(std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result);
    bool OnDrawItem(std::intptr_t lParam, std::intptr_t& result);
    bool OnSetPointer(std::uintptr_t wParam, std::intptr_t& result);
    bool OnTimer(std::uintptr_t wParam);
    bool OnSize(std::uintptr_t wParam);
    bool OnSizeLimits(std::intptr_t lParam);
    bool OnPaint();
    bool OnMenuOpens(std::uintptr_t wParam, std::intptr_t lParam);
    bool OnHelp(std::intptr_t lParam);
    bool OnContextMenu(platform::WindowHandle child, Point screen, bool byKeyboard);
    bool OnPaletteChanged(std::uintptr_t wParam);
    bool OnNewPalette(std::intptr_t& result);
    bool OnClose();
    bool OnActivation(std::uintptr_t wParam);
    bool OnSessionQuestion(std::intptr_t& result);
    bool OnSessionEnd(std::uintptr_t wParam);

    void ShowTopic(const Control& control);
    void RepaintPictures();
    Control* ControlOf(platform::WindowHandle child) const;

    /// The command of the menu that a right click on a control opens.
    static constexpr int kWhatsThis = 0x7f00;

    const char* className_;
    int templateId_;
    platform::WindowHandle handle_ = nullptr;
    platform::WindowHandle tips_ = nullptr;
    platform::WindowHandle disabledOwner_ = nullptr;
    bool unloading_ = false;
    unsigned long helpTopic_ = 0;
    std::map<int, Control*> controls_;
    std::vector<Timer*> timers_;
};

}  // namespace vistrel::controls
