#include "about/frm_splash.h"

#include "controls/screen_metrics.h"
#include "pictures/preview/draw_resource.h"
#include "resources/ids.h"
#include "resources/version.h"

namespace vistrel::about {
namespace {

constexpr long kWhite = 0xFFFFFF;
constexpr const char* kVersion = VERSION_SPLASH "\r\n" VERSION_DATE;

}  // namespace

// Quirk: the time that has passed is taken off in days and not in milliseconds, so that the wait is
// always about 700 (SplashTest.StaysForSevenTenthsOfASecondHoweverLongTheStartTook).
double SplashWait(double shownAt, double now) { return 700 - 1000 * (now - shownAt); }

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
