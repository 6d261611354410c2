// Times the list of 5,000 sets seen as thumbnails against the plain list, and a page of pictures
// against reading and scaling its screens and nothing else, and against scrolling a list that has
// no pictures.
#include <windows.h>
// commctrl.h and psapi.h need windows.h first.
#include <commctrl.h>
#include <psapi.h>

#include <array>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "bench/windows/machine.h"
#include "bench/windows/side_by_side.h"
#include "core/locations.h"
#include "main_window/principale.h"
#include "pictures/bmp/writer.h"
#include "pictures/file.h"
#include "pictures/read_picture.h"
#include "resources/ids.h"
#include "tests/support/user/held_objects.h"

namespace {

using vistrel::bench::Compare;
using vistrel::bench::HandleMessages;
using vistrel::bench::kLogos;
using vistrel::bench::MakeLibrary;
using vistrel::bench::Median;
using vistrel::bench::Now;
using vistrel::bench::Store;
using vistrel::bench::TimeOf;
using vistrel::main_window::Principale;

constexpr int kSets = 5000;
constexpr int kPages = 9;
/// Longer than the program waits before it compares kept pictures with their screens.
constexpr DWORD kRest = 250;

/// A screen with a gradient, some noise and none of the list's own colours.
std::vector<std::uint8_t> Screen() {
    std::vector<std::uint8_t> indices(320 * 400);
    unsigned noise = 1;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        noise = noise * 1103515245 + 12345;
        indices[i] = static_cast<std::uint8_t>(i / 640 + (noise >> 16) % 16);
    }
    std::vector<std::uint8_t> palette(1024);
    for (std::size_t i = 0; i < 256; ++i) {
        palette[i * 4] = static_cast<std::uint8_t>(255 - i);
        palette[i * 4 + 2] = static_cast<std::uint8_t>(i);
    }
    return vistrel::bmp::ColormappedBmp(indices.data(), 320, 400, 256, palette.data());
}

std::string ScreenOf(const std::string& set) { return kLogos + set + "\\LOGO.SYS"; }

void PrepareMachine() {
    MakeLibrary(kSets, ".SLS");
    const auto screen = Screen();
    for (int i = 0; i < kSets; ++i)
        vistrel::pictures::WriteWholeFile(ScreenOf("Set " + std::to_string(i) + ".SLS"), screen);
    // Of a set that it does not know the program would look for the installed one meanwhile.
    Store("DefaultLogoSet", "Set 0.SLS");
    Store("WindowWidth", "1000");
    Store("WindowHeight", "700");
}

/// The main window from its making to its being painted, in a view.
double TimeToOpen(const char* thumbnails) {
    Store("Thumbnails", thumbnails);
    double taken = 0;
    Principale window(vistrel::core::FindSystemLocations());
    taken = TimeOf([&] {
        window.Create(nullptr);
        window.Show();
    });
    window.Unload();
    return taken;
}

void CompareOpening() {
    std::vector<double> thumbnails, list, ratios;
    for (int round = 0; round <= 7; ++round) {
        const double a = TimeToOpen("1");
        const double b = TimeToOpen("0");
        if (round == 0) continue;
        thumbnails.push_back(a);
        list.push_back(b);
        ratios.push_back(a / b);
    }
    std::printf("%-34s ours %8.2f ms   list %8.2f ms   ratio %.2f\n", "opening in thumbnails",
                Median(thumbnails), Median(list), Median(ratios));
}

std::vector<std::string> SetsInView(Principale& window) {
    std::vector<std::string> sets;
    for (int i = window.MyList.TopItem(); i < window.MyList.Count() && window.MyList.IsInView(i);
         ++i)
        sets.push_back(window.MyList.ItemText(i));
    return sets;
}

/// Whether the last picture in sight is there.
bool PageIsPainted(Principale& window) {
    const HWND list = window.MyList.handle();
    const int last = window.MyList.TopItem() + static_cast<int>(SetsInView(window).size()) - 1;
    RECT r{};
    r.left = LVIR_ICON;
    SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(last), reinterpret_cast<LPARAM>(&r));
    const HDC dc = GetDC(list);
    const COLORREF color = GetPixel(dc, r.left + 10, r.top + 6);
    ReleaseDC(list, dc);
    return color != GetSysColor(COLOR_BTNFACE) && color != GetSysColor(COLOR_WINDOW);
}

void ScrollByPages(Principale& window, int pages) {
    RECT r{};
    GetClientRect(window.MyList.handle(), &r);
    SendMessageA(window.MyList.handle(), LVM_SCROLL, 0, pages * r.bottom);
}

/// Scrolls down by a page, until all of its pictures are there.
double TimeOfPage(Principale& window) {
    return TimeOf([&] {
        ScrollByPages(window, 1);
        do HandleMessages();
        while (!PageIsPainted(window));
    });
}

double TimeBare(Principale& window) {
    const auto sets = SetsInView(window);
    const auto size = window.MyList.PictureSize();
    return TimeOf([&] {
        for (const std::string& set : sets)
            vistrel::pictures::ReadPicturePreview(ScreenOf(set), size.width, size.height);
    });
}

/// What the control takes for a page: the same scrolling where no picture is painted.
double TimeOfList(Principale& window) {
    const auto painting =
        std::exchange(window.MyList.PaintPicture, [](auto, int, auto) { return true; });
    ScrollByPages(window, -1);
    UpdateWindow(window.MyList.handle());
    const double taken = TimeOf([&] {
        ScrollByPages(window, 1);
        HandleMessages();
    });
    window.MyList.PaintPicture = painting;
    return taken;
}

/// What it takes to compare the kept pictures with their screens, once the hand rests.
double TimeAtRest() {
    Sleep(kRest);
    return TimeOf(HandleMessages);
}

/// Looks at some pages, beside reading their screens, and prints both.
void LookAtPages(Principale& window, const char* what) {
    window.MyList.ScrollTo(0);
    TimeAtRest();
    std::vector<double> ours, bare, list, rest, ratios, without;
    for (int page = 0; page < kPages; ++page) {
        const double a = TimeOfPage(window);
        rest.push_back(TimeAtRest());
        const double b = TimeBare(window);
        const double c = TimeOfList(window);
        ours.push_back(a);
        bare.push_back(b);
        list.push_back(c);
        ratios.push_back(a / b);
        without.push_back((a - c) / b);
    }
    std::printf("%-34s ours %8.2f ms   bare %8.2f ms   ratio %.2f   (%u pictures)\n", what,
                Median(ours), Median(bare), Median(ratios),
                static_cast<unsigned>(SetsInView(window).size()));
    std::printf("%-34s list %8.2f ms   ratio without it %.2f   at rest, later, %.2f ms\n", "",
                Median(list), Median(without), Median(rest));
}

struct Held {
    double megabytes;
    vistrel::test::HeldObjects objects;
};

Held HeldNow() {
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return {static_cast<double>(memory.WorkingSetSize) / (1 << 20),
            vistrel::test::CountHeldObjects()};
}

}  // namespace

int main() {
    // Where it is ended early, what was measured is there.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    PrepareMachine();
    const std::string cache = vistrel::core::FindSystemLocations().programFolder + "thumbnails.dat";
    DeleteFileA(cache.c_str());
    Store("Thumbnails", "0");
    {
        Principale window(vistrel::core::FindSystemLocations());
        window.Create(nullptr);
        window.Show();
        HandleMessages();
        const Held before = HeldNow();
        SendMessageA(window.handle(), WM_COMMAND, ID_ToolThumbnailView, 0);
        do HandleMessages();
        while (!PageIsPainted(window));
        const Held shown = HeldNow();
        LookAtPages(window, "a page, nothing kept");
        window.LeggiDatiDisco();
        LookAtPages(window, "a page, pictures kept");
        const Held after = HeldNow();
        std::printf("%-34s ours %8.2f MB   list %8.2f MB   more %.1f MB, %.1f after all pages\n",
                    "working set with a page shown", shown.megabytes, before.megabytes,
                    shown.megabytes - before.megabytes, after.megabytes - before.megabytes);
        std::printf("%-34s for drawing %d, %d, %d   windows %d, %d, %d   list, page, all pages\n",
                    "objects held", before.objects.drawing, shown.objects.drawing,
                    after.objects.drawing, before.objects.windows, shown.objects.windows,
                    after.objects.windows);
        window.Unload();
    }
    CompareOpening();
    std::printf("Test program ended with status 0\n");
    return 0;
}
