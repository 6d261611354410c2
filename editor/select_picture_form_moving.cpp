// Moving the colours of the selected picture, or of the startup screen in the first slot.
#include "adjust/text_line.h"
#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "core/generali.h"
#include "editor/select_picture_form.h"
#include "pictures/compose/stages.h"
#include "pictures/file.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::editor {

void SelPictureForm::ItmMoveColors_Click() {
    if (!IsAdjustable()) return;
    const bool ready = ImageInfo.ForeColor() == kReadyColor;
    const std::string screen = Moved(ready ? SelectedPicture : ConvertSelected());
    if (!screen.empty()) ShowAsSelected(screen);
}

// The item of the main window's menu, which was opened on one of the pictures here.
void SelPictureForm::MoveColorsOfBox() {
    if (menuBox_ == &CurView) ItmMoveColors_Click();
    if (menuBox_ == &ImgPreview[0]) MoveSlot();
}

void SelPictureForm::MoveSlot() {
    const std::string screen = Moved(ImgPreview[0].Tag());
    if (screen.empty()) return;
    SetChanged = true;
    CheckBtnStatus();
    FillSlot(0, screen);
}

// The picture that a screen of this session was made of, on the screen in all its colours; empty
// when it is not known or gone.
std::optional<pictures::RgbPicture> SelPictureForm::OriginalOf(const std::string& screen) const {
    const adjust::Adjustment made = adjustments_.For(screen);
    if (core::UpperCase(made.source) == core::UpperCase(screen)) return std::nullopt;
    compose::Composition composition = made.composition;
    composition.text = adjust::MasksOf({made.lines.begin(), made.lines.end()});
    const auto framed = compose::ReadFramed(made.source, composition);
    if (!framed) return std::nullopt;
    return compose::Adjust(*framed, composition);
}

// Opens the window on a screen. The file of the new one; empty when nothing was made.
std::string SelPictureForm::Moved(const std::string& path) {
    std::optional<animate::Document> start;
    {
        const platform::BusyPointer busy;
        if (auto screen = animate::ReadScreen(path))
            start = animate::BeginDocument(std::move(*screen), OriginalOf(path));
    }
    if (!start) {
        platform::Tell(handle(),
                       path + " cannot be read as a screen. It may have been moved or damaged.");
        return {};
    }
    std::string made;
    const auto keep = [&](platform::WindowHandle owner, const std::vector<std::uint8_t>& file) {
        const std::string name = NewFileOfSession()();
        if (!name.empty() && pictures::WriteWholeFile(name, file)) {
            made = name;
            return true;
        }
        platform::Tell(owner,
                       "The screen cannot be written. The disk of temporary files may be full.");
        return false;
    };
    animate::FrmAnimate window(std::move(*start), host_.Preferences().logoPath, keep);
    // When it closes nothing is to be filled again.
    ActivateOnce = true;
    window.ShowModal(handle());
    ActivateOnce = false;
    return made;
}

}  // namespace vistrel::editor
