#include "controls/window.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>

#include "controls/display_palette.h"
#include "controls/message_loop.h"
#include "controls/picture_box.h"
#include "controls/screen_metrics.h"
#include "controls/stay_open.h"
#include "controls/timer.h"
#include "controls/win32.h"
#include "platform/fault.h"
#include "platform/instance.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::controls {
namespace {

/// A class of its own name for each window, so that it can be told from others from outside. The
/// dialog manager's procedure does the work.
void RegisterFormClass(const char* name) {
    WNDCLASSEXA c{};
    c.cbSize = sizeof c;
    if (GetClassInfoExA(platform::ProgramInstance(), name, &c)) return;
    c = {};
    c.cbSize = sizeof c;
    c.style = CS_DBLCLKS;
    c.lpfnWndProc = DefDlgProcA;
    c.cbWndExtra = DLGWINDOWEXTRA;
    c.hInstance = platform::ProgramInstance();
    c.hIcon = LoadIconA(platform::ProgramInstance(), "logoicon");
    c.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    c.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    c.lpszClassName = name;
    RegisterClassExA(&c);
}

/// The height of a menu that is not open yet is not told; no item is higher than a menu bar.
int MostHeightOf(HMENU menu) {
    return GetMenuItemCount(menu) * GetSystemMetrics(SM_CYMENU) +
           2 * GetSystemMetrics(SM_CYDLGFRAME);
}

}  // namespace

struct WindowProcedure {
    static INT_PTR CALLBACK Run(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrA(handle, DWLP_USER, lParam);
            // The program's first window takes the focus when it is shown. Given it now, while the
            // program is not in front, it would count as active and keep an inactive title.
            return GetWindow(handle, GW_OWNER) != nullptr;
        }
        auto* window = reinterpret_cast<Window*>(GetWindowLongPtrA(handle, DWLP_USER));
        if (!window || window->handle_ != handle) return FALSE;
        // No exception may cross the system's code.
        try {
            std::intptr_t result = 0;
            if (!window->OnMessage(message, wParam, lParam, result)) return FALSE;
            if (message == WM_CTLCOLORSTATIC) return result;  // these answer directly
            SetWindowLongPtrA(handle, DWLP_MSGRESULT, result);
            return TRUE;
        } catch (...) {
            return FALSE;
        }
    }
};

Window::Window(const char* className, int templateId)
    : className_(className), templateId_(templateId) {}

Window::~Window() {
    if (!handle_) return;
    // Its controls' and timers' objects are gone already: nothing that it hears now is handled.
    const HWND closing = handle_;
    handle_ = nullptr;
    RemoveFromLoop(*this);
    DestroyWindow(closing);
}

void Window::Add(Control& control, int id) { controls_[id] = &control; }

void Window::Add(Timer& timer) { timers_.push_back(&timer); }

void Window::AddParts(std::span<const Part> parts) {
    for (const Part& part : parts) {
        Add(part.control, part.id);
        part.control.SetHelpNumber(static_cast<int>(part.help));
        part.control.SetTip(part.tip);
    }
}

bool Window::AttachControls() {
    return std::all_of(controls_.begin(), controls_.end(), [this](const auto& numbered) {
        return numbered.second->Attach(*this, numbered.first);
    });
}

bool Window::Create(platform::WindowHandle owner) {
    InitCommonControls();
    RegisterPictureBoxClass();
    RegisterFormClass(className_);
    if (platform::fault::ShouldFail(platform::fault::Kind::Windows)) return false;
    const HWND handle =
        CreateDialogParamA(platform::ProgramInstance(), MAKEINTRESOURCEA(templateId_), owner,
                           &WindowProcedure::Run, reinterpret_cast<LPARAM>(this));
    if (!handle) return false;
    handle_ = handle;
    tips_ = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, handle_,
                            nullptr, platform::ProgramInstance(), nullptr);
    // A long tip is broken into lines, else it would leave the screen.
    SendMessageA(tips_, TTM_SETMAXTIPWIDTH, 0, WorkArea().width / 2);
    if (!AttachControls()) {
        DestroyWindow(handle_);
        return false;
    }
    for (Timer* timer : timers_) timer->Attach(handle_);
    AddToLoop(*this);
    Form_Load();
    Form_Resize(ClientSize());
    LetHelpersStayOpen();
    return true;
}

void Window::Show() {
    ShowWindow(handle_, SW_SHOW);
    // Before anything is painted, so that nobody sees the controls empty.
    Form_Activate();
    if (handle_) UpdateWindow(handle_);
}

bool Window::ShowInFront(platform::WindowHandle owner) {
    if (Window* below = OpenWindowOf(owner)) below->EndEdits();
    if (!Create(owner)) return false;
    if (owner && IsWindowEnabled(owner)) {
        disabledOwner_ = owner;
        EnableWindow(owner, FALSE);
    }
    // A heading that was clicked has the mouse until what that brings about is done, and would keep
    // it from this window.
    ReleaseCapture();
    Show();
    return true;
}

void Window::ShowModal(platform::WindowHandle owner) {
    if (!ShowInFront(owner)) {
        platform::ShowDefaultPointer();
        return platform::Tell(owner,
                              "The window cannot be opened. There may not be enough memory.");
    }
    RunLoopWhileOpen(*this);
    if (Window* below = OpenWindowOf(owner)) below->Form_Activate();
}

bool Window::Unload() {
    if (!handle_) return true;
    if (unloading_) return false;  // asked again while Form_Unload still asks the user
    unloading_ = true;
    EndEdits();
    const bool agreed = Form_Unload();
    unloading_ = false;
    if (!agreed) return false;
    FreeOwner();
    DestroyWindow(handle_);
    return true;
}

void Window::CloseSoon() { PostMessageA(handle_, WM_CLOSE, 0, 0); }

// The owner must be able to take the focus before this window gives it up.
void Window::FreeOwner() {
    if (disabledOwner_) EnableWindow(disabledOwner_, TRUE);
    disabledOwner_ = nullptr;
}

// By Unload, or by the system together with the window that owns it.
void Window::OnDestroy() {
    for (Timer* timer : timers_) timer->SetEnabled(false);
    FreeOwner();
    RemoveFromLoop(*this);
    handle_ = nullptr;
    tips_ = nullptr;
}

bool Window::IsEnabled() const { return IsWindowEnabled(handle_) != 0; }

Control* Window::Find(int id) const {
    const auto found = controls_.find(id);
    return found == controls_.end() ? nullptr : found->second;
}

Control* Window::ControlAt(Point screen) const {
    return ControlOf(WindowFromPoint({screen.x, screen.y}));
}

Control* Window::ControlOf(platform::WindowHandle child) const {
    while (child && child != handle_) {
        Control* control = Find(GetDlgCtrlID(child));
        if (control && control->handle() == child) return control;
        child = GetParent(child);
    }
    return nullptr;
}

Size Window::ClientSize() const {
    RECT r{};
    GetClientRect(handle_, &r);
    return {static_cast<int>(r.right), static_cast<int>(r.bottom)};
}

Size Window::WholeSize() const {
    const Rect place = PlaceOnScreen(handle_);
    return {place.width, place.height};
}

void Window::SetClientSize(Size size) {
    RECT r{0, 0, size.width, size.height};
    AdjustWindowRectEx(&r, static_cast<DWORD>(GetWindowLongA(handle_, GWL_STYLE)),
                       GetMenu(handle_) != nullptr,
                       static_cast<DWORD>(GetWindowLongA(handle_, GWL_EXSTYLE)));
    SetWindowPos(handle_, nullptr, 0, 0, r.right - r.left, r.bottom - r.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::CentreIn(const Rect& area) {
    const Size whole = WholeSize();
    SetWindowPos(handle_, nullptr, area.left + (area.width - whole.width) / 2,
                 area.top + (area.height - whole.height) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::FitInto(const Rect& area) {
    const Size whole = WholeSize();
    SetWindowPos(handle_, nullptr, 0, 0, std::min(whole.width, area.width),
                 std::min(whole.height, area.height), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CentreIn(area);
}

void Window::RepaintAll() {
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// Picture boxes hold the colours; each realises its own when it paints.
void Window::RepaintPictures() {
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void Window::PaintAtOnce() {
    RedrawWindow(handle_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void Window::GiveFocus(const Control& control) {
    SendMessageA(handle_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control.handle()), TRUE);
}

void Window::FocusNextTo(const Control& control) {
    const HWND next = GetNextDlgTabItem(handle_, control.handle(), FALSE);
    SendMessageA(handle_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
}

Rect Window::FromDialogUnits(const Rect& units) const {
    RECT r{units.left, units.top, units.right(), units.bottom()};
    MapDialogRect(handle_, &r);
    return RectOf(r);
}

void Window::ShowTip(platform::WindowHandle child, const std::string& tip) {
    TOOLINFOA info{};
    info.cbSize = TTTOOLINFOA_V1_SIZE;  // the size that Windows 95 knows
    info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    info.hwnd = handle_;
    info.uId = reinterpret_cast<UINT_PTR>(child);
    SendMessageA(tips_, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&info));
    if (tip.empty()) return;
    info.lpszText = const_cast<char*>(tip.c_str());
    SendMessageA(tips_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&info));
}

void Window::PopUpMenu(platform::MenuHandle menu, Point screen, int defaultItem) {
    SetMenuDefaultItem(menu, defaultItem ? static_cast<UINT>(defaultItem) : UINT(-1), FALSE);
    TrackMenu(menu, screen, TPM_TOPALIGN);
}

// Left to itself the system would move the menu up over the button, the pointer onto an item.
void Window::PopUpMenuAt(const Control& button, platform::MenuHandle menu) {
    const Rect place = button.ScreenBounds();
    if (place.bottom() + MostHeightOf(menu) <= WorkArea().bottom())
        TrackMenu(menu, {place.left, place.bottom()}, TPM_TOPALIGN);
    else
        TrackMenu(menu, {place.left, place.top}, TPM_BOTTOMALIGN);
}

void Window::TrackMenu(platform::MenuHandle menu, Point screen, unsigned align) {
    TrackPopupMenu(menu, TPM_LEFTALIGN | TPM_RIGHTBUTTON | align, screen.x, screen.y, 0, handle_,
                   nullptr);
}

void Window::EndEdits() {
    for (const auto& [id, control] : controls_) control->EndEdit();
}

}  // namespace vistrel::controls
