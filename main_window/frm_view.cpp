#include "main_window/frm_view.h"

#include <utility>

#include "controls/screen_metrics.h"
#include "pictures/draw_preview.h"
#include "resources/ids.h"

namespace vistrel {

FrmView::FrmView(std::string path, bool animate)
    : Window("FrmView", IDD_FrmView), path_(std::move(path)), animate_(animate) {
    Add(Preview, ID_Preview, "Click or press a key to close");
    Preview.MouseUp = [this](int, Point) { Preview_Click(); };
}

void FrmView::Form_Load() {
    ShowPictureInBox(path_, Preview);
    SetClientSize({Preview.ScaleWidth(), Preview.ScaleHeight()});
    CentreIn(WorkArea());
}

void FrmView::Form_KeyPress(char) { Unload(); }

void FrmView::Preview_Click() { Unload(); }

}  // namespace vistrel
