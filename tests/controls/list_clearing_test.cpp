// What a list says when it is emptied.
#include <gtest/gtest.h>
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "controls/list_view.h"
#include "controls/window.h"
#include "resources/ids.h"

namespace vistrel::test {

using namespace controls;

namespace {

class CountingList : public ListView {
 public:
    std::intptr_t OnNotify(void* header) override {
        if (static_cast<const NMHDR*>(header)->code == LVN_DELETEITEM) ++deleted;
        return ListView::OnNotify(header);
    }

    int deleted = 0;
};

class ListHolder : public Window {
 public:
    ListHolder() : Window("Principale", IDD_Principale) { Add(list, ID_MyList); }

    CountingList list;
};

TEST(ClearingAList, SaysNothingOfEachItem) {
    ListHolder window;
    ASSERT_TRUE(window.Create(nullptr));
    for (const char* name : {"One", "Two", "Three"}) window.list.AddItem(name, "");
    window.list.RemoveItem(0);
    EXPECT_EQ(window.list.deleted, 1);
    window.list.Clear();
    EXPECT_EQ(window.list.Count(), 0);
    EXPECT_EQ(window.list.deleted, 1);
    DestroyWindow(window.handle());
}

}  // namespace
}  // namespace vistrel::test
