// A program that is used for years in one go: what it holds and how long each step takes must stay
// as it was after the first ones. Prints a row for each twentieth of the steps of a kind:
//
//   kind, steps so far, milliseconds a step, handles of the system, of its graphics and of its
//   windows, megabytes of memory of its own
//
// VISTREL_PERCENT in the environment: of the full number of steps.
#include <windows.h>
// psapi.h needs windows.h first.
#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "about/frm_about_reg.h"
#include "about/frm_splash.h"
#include "adjust/frm_adjust.h"
#include "adjust/frm_many_sets.h"
#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "bench/windows/machine.h"
#include "bench/windows/side_by_side.h"
#include "boot_show/boot_screens.h"
#include "boot_show/frm_boot_show.h"
#include "core/locations.h"
#include "editor/select_picture_form.h"
#include "main_window/frm_view.h"
#include "main_window/principale.h"
#include "options/frm_options.h"
#include "pictures/bmp/writer.h"
#include "pictures/file.h"
#include "resources/ids.h"
#include "tests/support/user/held_objects.h"

namespace vistrel::bench {
namespace {

using main_window::Principale;

constexpr int kRows = 20;
constexpr int kSets = 20;
const std::string kLogos = "C:\\logos\\";

std::string SetName(int number) { return "Set " + std::to_string(number % kSets); }

void PrepareMachine() {
    CreateDirectoryA("C:\\logos", nullptr);
    std::vector<std::uint8_t> indices(320 * 400), palette(1024);
    for (int set = 0; set < kSets; ++set) {
        for (std::size_t i = 0; i < indices.size(); ++i)
            indices[i] = static_cast<std::uint8_t>(i / 320 + static_cast<std::size_t>(set));
        for (std::size_t i = 0; i < palette.size(); ++i)
            palette[i] = static_cast<std::uint8_t>(i / 4);
        CreateDirectoryA((kLogos + SetName(set)).c_str(), nullptr);
        for (const char* screen : {"\\LOGO.SYS", "\\LOGOW.SYS", "\\LOGOS.SYS"})
            pictures::WriteWholeFile(
                kLogos + SetName(set) + screen,
                bmp::ColormappedBmp(indices.data(), 320, 400, 256, palette.data()));
    }
    Store("LogoPath", kLogos);
    Store("SearchLogoPath", kLogos);
    Store("DefaultLogoSet", SetName(0));
}

void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

double Megabytes() {
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return static_cast<double>(memory.PagefileUsage) / (1 << 20);
}

void Live(const char* kind, int steps, const std::function<void(int)>& step) {
    const int each = std::max(steps / kRows, 1);
    for (int row = 1; row <= kRows; ++row) {
        const double taken = TimeOf([&] {
            for (int i = 0; i < each; ++i) {
                step((row - 1) * each + i);
                PumpMessages();
            }
        });
        const test::HeldObjects held = test::CountHeldObjects();
        std::printf("%s\t%d\t%.3f\t%d\t%d\t%d\t%.2f\n", kind, row * each, taken / each,
                    held.handles, held.drawing, held.windows, Megabytes());
        std::fflush(stdout);
    }
}

/// Opens a window that `make` makes, lets it paint, and closes it.
template <class Make>
void Openings(const char* kind, int steps, Make make) {
    Live(kind, steps, [&](int) {
        auto window = make();
        window->Create(nullptr);
        window->Show();
        PumpMessages();
        window->Unload();
    });
}

void LiveAll(int percent) {
    const auto share = [&](int steps) { return std::max(steps / 100 * percent, kRows); };
    Principale main(core::FindSystemLocations());
    main.Create(nullptr);
    main.Show();
    PumpMessages();
    Live("selections", share(100000), [&](int i) { main.SelItem(SetName(i)); });
    Live("installs", share(10000), [&](int i) {
        main.SelItem(SetName(i));
        SendMessageA(main.handle(), WM_COMMAND, ID_ToolSetDefault, 0);
    });
    Live("refreshes", share(10000), [&](int) { main.LeggiDatiDisco(); });
    const int openings = share(1000);
    const std::string screen = kLogos + SetName(0) + "\\LOGO.SYS";
    Openings("preferences", openings, [&] { return std::make_unique<options::FrmOptions>(main); });
    Openings("Logo browser", openings,
             [&] { return std::make_unique<editor::SelPictureForm>(main); });
    Openings("actual size", openings,
             [&] { return std::make_unique<main_window::FrmView>(screen, false); });
    Openings("about box", openings, [] { return std::make_unique<about::FrmAboutReg>(); });
    Openings("splash screen", openings, [] { return std::make_unique<about::frmSplash>(); });
    Openings("Adjust picture", openings, [&] {
        auto adjust = std::make_unique<adjust::FrmAdjust>(adjust::Adjustment{screen, {}, {}},
                                                          [] { return std::string(); });
        adjust->ReadPicture();
        return adjust;
    });
    Openings("many sets", openings, [&] {
        return std::make_unique<adjust::FrmManySets>(kLogos, std::vector<std::string>{screen});
    });
    Openings("Moving colours", openings, [&] {
        return std::make_unique<animate::FrmAnimate>(
            *animate::BeginDocument(*animate::ReadScreen(screen), std::nullopt), kLogos,
            [](platform::WindowHandle, const std::vector<std::uint8_t>&) { return true; });
    });
    Openings("Show as at start", openings, [&] {
        return std::make_unique<boot_show::FrmBootShow>(
            boot_show::ReadScreens({{screen, boot_show::Colors::Move}}));
    });
    main.Unload();
}

}  // namespace
}  // namespace vistrel::bench

int main() {
    vistrel::bench::PrepareMachine();
    const char* const percent = std::getenv("VISTREL_PERCENT");
    vistrel::bench::LiveAll(percent ? std::atoi(percent) : 100);
    std::printf("Test program ended with status 0\n");
    return 0;
}
