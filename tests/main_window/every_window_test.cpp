// Looks through every window there is for controls that nobody holds.

#include <algorithm>

#include "about/frm_about_reg.h"
#include "about/frm_splash.h"
#include "adjust/frm_adjust.h"
#include "adjust/frm_many_sets.h"
#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "boot_show/frm_boot_show.h"
#include "editor/select_picture_form.h"
#include "main_window/frm_progress.h"
#include "main_window/frm_view.h"
#include "options/frm_options.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace adjust;
using namespace animate;

using namespace about;
using namespace controls;
using namespace editor;
using namespace main_window;
using namespace options;

namespace {

class EveryWindow : public MainWindow98 {
 protected:
    /// Each member stands for a real window, and each child window for a member; `others` are the
    /// numbers of child windows that the window makes itself.
    static void Check(Window& window, const std::vector<int>& others = {}) {
        ASSERT_TRUE(window.IsOpen());
        for (const auto& [id, control] : window.controls())
            EXPECT_NE(control->handle(), nullptr) << user::ClassOf(window.handle()) << " " << id;
        for (HWND child = GetWindow(window.handle(), GW_CHILD); child;
             child = GetWindow(child, GW_HWNDNEXT)) {
            const int id = GetDlgCtrlID(child);
            if (std::find(others.begin(), others.end(), id) == others.end()) {
                EXPECT_NE(window.Find(id), nullptr) << user::ClassOf(window.handle()) << " " << id;
            }
        }
    }
};

TEST_F(EveryWindow, HoldsEachOfItsControls) {
    WithMainWindow([&](Principale& main) { Check(main, {ID_ActiveBar1}); });

    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    FrmOptions options(main);
    SelPictureForm editor(main);
    FrmView view(logos + "Blue\\LOGO.SYS", false);
    FrmAdjust adjust({logos + "Blue\\LOGO.SYS", {}, {}}, [] { return std::string(); });
    ASSERT_TRUE(adjust.ReadPicture());
    FrmManySets many(logos, {logos + "Blue\\LOGO.SYS"});
    FrmAnimate animate(
        *BeginDocument(*ReadScreen(logos + "Blue\\LOGO.SYS"), std::nullopt), logos,
        [](platform::WindowHandle, const std::vector<std::uint8_t>&) { return true; });
    FrmProgress progress(nullptr, "");
    boot_show::FrmBootShow show({screen::IndexedScreen{1, 1, {0}, {}, 0}});
    FrmAboutReg about;
    frmSplash splash;
    for (Window* window :
         std::initializer_list<Window*>{&options, &editor, &adjust, &many, &animate, &progress,
                                        &view, &show, &about, &splash}) {
        ASSERT_TRUE(window->Create(nullptr));
        Check(*window);
    }
}

}  // namespace
}  // namespace vistrel::test
