// Times the main window against the bare system calls that it cannot do without, side by side.
#include <windows.h>
// commctrl.h and psapi.h need windows.h first.
#include <commctrl.h>
#include <psapi.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench/windows/machine.h"
#include "bench/windows/side_by_side.h"
#include "core/locations.h"
#include "main_window/principale.h"
#include "pictures/bmp/writer.h"
#include "pictures/file.h"

namespace {

using vistrel::bench::AddRow;
using vistrel::bench::Compare;
using vistrel::bench::kLogos;
using vistrel::bench::MakeLibrary;
using vistrel::bench::Median;
using vistrel::bench::Now;
using vistrel::bench::Store;

constexpr int kSets = 5000;

void WriteScreen(const std::string& path) {
    std::vector<std::uint8_t> indices(320 * 400);
    for (std::size_t i = 0; i < indices.size(); ++i) indices[i] = static_cast<std::uint8_t>(i * 7);
    std::vector<std::uint8_t> palette(1024);
    for (std::size_t i = 0; i < palette.size(); ++i) palette[i] = static_cast<std::uint8_t>(i / 4);
    vistrel::pictures::WriteWholeFile(
        path, vistrel::bmp::ColormappedBmp(indices.data(), 320, 400, 256, palette.data()));
}

void PrepareMachine() {
    MakeLibrary(kSets);
    for (const char* set : {"Set 1", "Set 2"})
        for (const char* screen : {"\\LOGO.SYS", "\\LOGOW.SYS", "\\LOGOS.SYS"})
            WriteScreen(kLogos + set + screen);
    Store("DefaultLogoSet", "none");
}

/// Enumerates the folder and adds the same items to a plain list view with painting off.
void FillBareList(HWND list) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((kLogos + "*.*").c_str(), &found);
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) || found.cFileName[0] == '.')
            continue;
        AddRow(list, found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

/// Loads a set's three files as bitmaps and stretches them into the boxes.
void BlitBare(vistrel::main_window::Principale& main, const std::string& set) {
    const char* names[] = {"\\LOGO.SYS", "\\LOGOW.SYS", "\\LOGOS.SYS"};
    for (int i = 0; i < 3; ++i) {
        const HWND box = main.Imag[i].handle();
        const HANDLE bitmap = LoadImageA(nullptr, (kLogos + set + names[i]).c_str(), IMAGE_BITMAP,
                                         0, 0, LR_LOADFROMFILE);
        const HDC target = GetDC(box);
        const HDC memory = CreateCompatibleDC(target);
        const HGDIOBJ former = SelectObject(memory, bitmap);
        SetStretchBltMode(target, HALFTONE);
        StretchBlt(target, 0, 0, main.Imag[i].ScaleWidth(), main.Imag[i].ScaleHeight(), memory, 0,
                   0, 320, 400, SRCCOPY);
        SelectObject(memory, former);
        DeleteDC(memory);
        ReleaseDC(box, target);
        DeleteObject(bitmap);
    }
    GdiFlush();
}

/// What a start takes, until a window of this class is shown and answers.
struct Start {
    double milliseconds;
    double megabytes;  ///< the idle program's working set, a second later
};

Start StartOf(const std::string& program, const char* windowClass) {
    constexpr DWORD kPatience = 20000;
    std::string line = program;
    STARTUPINFOA how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started{};
    const double begun = Now();
    CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how,
                   &started);
    HWND window = nullptr;
    while (!(window = FindWindowA(windowClass, nullptr)) || !IsWindowVisible(window)) Sleep(1);
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
    Start start{Now() - begun, 0};
    Sleep(1000);
    PROCESS_MEMORY_COUNTERS memory{};
    if (GetProcessMemoryInfo(started.hProcess, &memory, sizeof memory))
        start.megabytes = static_cast<double>(memory.WorkingSetSize) / (1 << 20);
    PostMessageA(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(started.hProcess, kPatience);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return start;
}

void CompareStarts() {
    // Ten sets, as a user may have.
    for (int i = 10; i < kSets; ++i)
        RemoveDirectoryA((kLogos + "Set " + std::to_string(i)).c_str());
    std::vector<double> ours, bare, ourMemory, bareMemory;
    for (int round = 0; round < 8; ++round) {
        // The splash screen stays for its time, however quick the start is; a first start sets it.
        Store("ShowSplashScreen", "0");
        const Start our = StartOf("vistrel.exe", "Principale");
        const Start other = StartOf("bare_list.exe", "BareList");
        ours.push_back(our.milliseconds);
        bare.push_back(other.milliseconds);
        ourMemory.push_back(our.megabytes);
        bareMemory.push_back(other.megabytes);
    }
    std::printf(
        "start to answering window, 10 sets  ours %8.2f ms   bare %8.2f ms   more %.0f ms\n",
        Median(ours), Median(bare), Median(ours) - Median(bare));
    std::printf(
        "idle program's working set          ours %8.2f MB   bare %8.2f MB   more %.1f MB\n",
        Median(ourMemory), Median(bareMemory), Median(ourMemory) - Median(bareMemory));
}

}  // namespace

int main() {
    PrepareMachine();
    {
        vistrel::main_window::Principale window(vistrel::core::FindSystemLocations());
        window.Create(nullptr);
        window.Show();
        const HWND plain =
            CreateWindowA(WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_LIST, 0, 0, 300, 300,
                          window.handle(), nullptr, GetModuleHandleA(nullptr), nullptr);
        Compare(
            "LeggiDatiDisco, 5,000 sets", 7, [&] { window.LeggiDatiDisco(); },
            [&] { FillBareList(plain); });
        DestroyWindow(plain);
        bool other = false;
        const auto next = [&] { return std::string((other = !other) ? "Set 1" : "Set 2"); };
        Compare(
            "selecting a set among 5,000", 60, [&] { window.SelItem(next()); },
            [&] { BlitBare(window, next()); });
        window.Unload();
    }
    CompareStarts();
    std::printf("Test program ended with status 0\n");
    return 0;
}
