#include "about/frm_splash.h"

#include "controls/screen_metrics.h"
#include "pictures/preview/draw_resource.h"
#include "resources/ids.h"

namespace vistrel::about {
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
    preview::ShowPictureResource("SPLASH", SplashPicture);
    const controls::Size size{SplashPicture.ScaleWidth(), SplashPicture.ScaleHeight()};
    const controls::Rect area = controls::WorkArea();
    SetClientSize(size);
    CentreIn(area);
    const controls::Rect label = LblVersion.Bounds();
    LblVersion.MoveTo({size.width - label.width - 12, size.height - label.height - 10, label.width,
                       label.height});
}

}  // namespace vistrel::about
