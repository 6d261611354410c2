// Times the listing of a folder of pictures in the Logo browser against a bare enumeration that
// fills the same kind of list, side by side.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <cstdio>
#include <string>

#include "bench/windows/machine.h"
#include "bench/windows/side_by_side.h"
#include "core/locations.h"
#include "editor/select_picture_form.h"
#include "main_window/principale.h"

namespace {

constexpr int kPictures = 3000;
constexpr int kRounds = 15;
const std::string kFolder = "C:\\pictures\\";

void MakePictures() {
    CreateDirectoryA("C:\\pictures", nullptr);
    for (int i = 0; i < kPictures; ++i) {
        const std::string path =
            kFolder + "Picture " + std::to_string(i * 7919 % kPictures) + ".jpg";
        CloseHandle(
            CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
}

/// Adds every name of the folder to a plain list view with painting off.
void FillBareList(HWND list) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LVM_DELETEALLITEMS, 0, 0);
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((kFolder + "*.*").c_str(), &found);
    do {
        vistrel::bench::AddRow(list, found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

}  // namespace

int main() {
    MakePictures();
    {
        vistrel::main_window::Principale window(vistrel::core::FindSystemLocations());
        window.Create(nullptr);
        vistrel::editor::SelPictureForm editor(window);
        editor.Create(window.handle());
        editor.Show();
        const HWND plain = CreateWindowA(
            WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_NOCOLUMNHEADER, 0, 0, 170,
            400, editor.handle(), nullptr, GetModuleHandleA(nullptr), nullptr);
        LVCOLUMNA column{};
        column.mask = LVCF_WIDTH;
        column.cx = 150;
        SendMessageA(plain, LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));

        vistrel::bench::Compare(
            "FillList, 3,000 pictures", kRounds, [&] { editor.FillList(kFolder); },
            [&] { FillBareList(plain); });
        editor.Unload();
        window.Unload();
    }
    std::printf("Test program ended with status 0\n");
    return 0;
}
