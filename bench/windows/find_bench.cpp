// Times typing into "Find:" over 5,000 sets, and the list that follows it, against filtering the
// same names and filling a plain list view with them.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/windows/machine.h"
#include "bench/windows/side_by_side.h"
#include "core/locations.h"
#include "main_window/principale.h"

namespace {

using vistrel::bench::AddRow;
using vistrel::bench::HandleMessages;
using vistrel::bench::MakeLibrary;
using vistrel::bench::Median;
using vistrel::bench::Store;
using vistrel::bench::TimeOf;
using vistrel::main_window::Principale;

constexpr int kSets = 5000;
constexpr int kRounds = 9;
/// Longer than the program waits for the next key.
constexpr DWORD kRest = 100;

void PrepareMachine() {
    MakeLibrary(kSets);
    // Of a set that it does not know the program would look for the installed one meanwhile.
    Store("DefaultLogoSet", "Set 0");
}

std::vector<std::string> NamesIn(Principale& window) {
    std::vector<std::string> names;
    for (int i = 0; i < window.MyList.Count(); ++i) names.push_back(window.MyList.ItemText(i));
    return names;
}

/// Whether a name holds a text that is in capitals.
bool Holds(std::string name, const std::string& text) {
    CharUpperA(name.data());
    return name.find(text) != std::string::npos;
}

void FillBareList(HWND list, const std::vector<std::string>& names, std::string text) {
    CharUpperA(text.data());
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
    for (const std::string& name : names)
        if (Holds(name, text)) AddRow(list, name.c_str());
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
}

/// What stands in the box once some keys are typed behind what stood there.
struct Step {
    const char* what;
    const char* typed;  ///< Backspace is among them
    const char* text;
};
constexpr Step kSteps[] = {
    {"the first letter, in every name", "S", "S"},
    {"a word, in a fifth of the names", "et 1", "Set 1"},
    {"a letter more, in one of 45", "2", "Set 12"},
    {"the last two taken back", "\b\b", "Set "},
    {"all taken back", "\b\b\b\b", ""},
};

/// How long a key waits that is typed when the list begins to be filled for the one before it.
double TimeOfKeyBehind(Principale& window) {
    window.FindBox.Focus();
    HandleMessages();
    SendMessageA(window.FindBox.handle(), WM_CHAR, 'S', 0);
    keybd_event(VK_SHIFT, 0, 0, 0);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    Sleep(kRest);
    const double taken = TimeOf([] {
        MSG tick;
        while (PeekMessageA(&tick, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) DispatchMessageA(&tick);
    });
    window.FindBox.SetText("");
    HandleMessages();
    Sleep(kRest);
    HandleMessages();
    return taken;
}

struct Times {
    std::vector<double> ours, bare, ratios;
};

void TypeAndCompare(Principale& window, HWND plain) {
    const std::vector<std::string> names = NamesIn(window);
    std::vector<double> keys, behind;
    Times times[std::size(kSteps)];
    for (int round = 0; round < kRounds; ++round) {
        behind.push_back(TimeOfKeyBehind(window));
        for (std::size_t i = 0; i < std::size(kSteps); ++i) {
            for (const char* key = kSteps[i].typed; *key; ++key)
                keys.push_back(
                    TimeOf([&] { SendMessageA(window.FindBox.handle(), WM_CHAR, *key, 0); }));
            Sleep(kRest);
            const double a = TimeOf(HandleMessages);
            const double b = TimeOf([&] { FillBareList(plain, names, kSteps[i].text); });
            times[i].ours.push_back(a);
            times[i].bare.push_back(b);
            times[i].ratios.push_back(a / b);
        }
    }
    std::printf("%-34s ours %8.2f ms   at most %.2f ms\n", "a key typed into \"Find:\"",
                Median(keys), *std::max_element(keys.begin(), keys.end()));
    std::printf("%-34s ours %8.2f ms   at most %.2f ms\n", "waiting for the list behind a key",
                Median(behind), *std::max_element(behind.begin(), behind.end()));
    for (std::size_t i = 0; i < std::size(kSteps); ++i)
        std::printf("%-34s ours %8.2f ms   bare %8.2f ms   ratio %.2f\n", kSteps[i].what,
                    Median(times[i].ours), Median(times[i].bare), Median(times[i].ratios));
}

}  // namespace

int main() {
    // Where it is ended early, what was measured is there.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    PrepareMachine();
    for (const char* thumbnails : {"0", "1"}) {
        std::printf("%s\n", *thumbnails == '0' ? "Seen as a list:" : "Seen as thumbnails:");
        Store("Thumbnails", thumbnails);
        Principale window(vistrel::core::FindSystemLocations());
        window.Create(nullptr);
        window.Show();
        HandleMessages();
        const DWORD view = *thumbnails == '0' ? LVS_LIST : LVS_ICON | LVS_AUTOARRANGE;
        const HWND plain =
            CreateWindowA(WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | view, 0, 0, 300, 300,
                          window.handle(), nullptr, GetModuleHandleA(nullptr), nullptr);
        TypeAndCompare(window, plain);
        DestroyWindow(plain);
        window.Unload();
    }
    std::printf("Test program ended with status 0\n");
    return 0;
}
