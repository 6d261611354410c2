#include "about/frm_splash.h"

#include "controls/screen_metrics.h"
#include "pictures/preview/draw_resource.h"
#include "resources/ids.h"

namespace vistrel {
namespace {

constexpr long kWhite = 0xFFFFFF;
constexpr const char* kVersion = "4.00 - BETA 2\r\n5th May 1998";

}  // namespace

frmSplash::frmSplash() : Window("frmSplash", IDD_Splash) {
    Add(SplashPicture, ID_SplashPicture);
    Add(LblVersion, ID_LblSplashVersion);
}

void frmSplash::Form_Load() {
    LblVersion.SetText(kVersion);
    LblVersion.SetForeColor(kWhite);
    LblVersion.SetSeeThrough();
    ShowPictureResource("SPLASH", SplashPicture);
    const Size size{SplashPicture.ScaleWidth(), SplashPicture.ScaleHeight()};
    const Rect area = WorkArea();
    SetClientSize(size);
    CentreIn(area);
    const Rect label = LblVersion.Bounds();
    LblVersion.MoveTo({size.width - label.width - 12, size.height - label.height - 10, label.width,
                       label.height});
}

}  // namespace vistrel
