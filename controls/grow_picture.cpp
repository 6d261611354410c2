#include "controls/grow_picture.h"

#include <algorithm>

#include "controls/screen_metrics.h"

namespace vistrel::controls {
namespace {

/// A screen needs no more room than this to be seen in all its pixels.
constexpr int kWidestPicture = 640;

}  // namespace

void GrowPicture(Window& window, PictureBox& picture, const Control& pages, const Control& hint) {
    const Rect area = WorkArea();
    const Size whole = window.WholeSize();
    const Rect place = picture.Bounds();
    const int edge = place.width - picture.ScaleWidth();
    const int roomAcross = place.width - edge + std::max(area.width - whole.width, 0);
    const int roomDown = place.height - edge + std::max(area.height - whole.height, 0);
    const int width = std::min({kWidestPicture, roomAcross, roomDown * 4 / 3});
    const int height = width * 3 / 4;
    const int wider = std::max(width + edge - place.width, 0);
    const int higher = std::max(height + edge - place.height, 0);
    picture.MoveTo({place.left + (place.width + wider - width - edge) / 2,
                    place.top + (place.height + higher - height - edge) / 2, width + edge,
                    height + edge});
    const Rect page = pages.Bounds();
    for (const auto& [id, control] : window.controls()) {
        if (control == &picture) continue;
        Rect at = control->Bounds();
        if (at.left >= page.left) at.left += wider;
        if (at.top >= page.bottom()) at.top += higher;
        if (control == &pages) at.height += higher;
        if (control == &hint) at.width += wider;
        control->MoveTo(at);
    }
    const Size client = window.ClientSize();
    window.SetClientSize({client.width + wider, client.height + higher});
    window.CentreIn(area);
}

}  // namespace vistrel::controls
