// Who destroys the small pictures of a list.
#include <gtest/gtest.h>
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <memory>

#include "controls/list_view.h"
#include "controls/window.h"
#include "resources/ids.h"

namespace vistrel::test {

using namespace controls;

namespace {

/// A window whose list object can go before the list itself.
class ListHolder : public Window {
 public:
    ListHolder() : Window("Principale", IDD_Principale) { Add(*list, ID_MyList); }

    std::unique_ptr<ListView> list = std::make_unique<ListView>();
};

TEST(IconsOfAList, GoWithTheListItselfAndNotBefore) {
    ListHolder window;
    ASSERT_TRUE(window.Create(nullptr));
    window.list->LoadIcons(IDB_List, 0xFF00FF, {"singlelogo", "multilogo", "installed"});
    const HWND list = window.list->handle();
    const auto icons =
        reinterpret_cast<HIMAGELIST>(SendMessageA(list, LVM_GETIMAGELIST, LVSIL_SMALL, 0));
    EXPECT_EQ(ImageList_GetImageCount(icons), 3);
    window.list.reset();
    EXPECT_EQ(ImageList_GetImageCount(icons), 3);
    DestroyWindow(window.handle());
    EXPECT_FALSE(IsWindow(list));
}

}  // namespace
}  // namespace vistrel::test
