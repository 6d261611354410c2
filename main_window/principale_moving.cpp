// Moving the colours of a set's startup screen.
#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "core/replacing.h"
#include "main_window/principale.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::main_window {

void Principale::ItmMoveColors_Click() {
    const std::string path = currentPicture_;
    std::optional<animate::Document> start;
    {
        const platform::BusyPointer busy;
        if (auto screen = animate::ReadScreen(path))
            start = animate::BeginDocument(std::move(*screen), std::nullopt);
    }
    if (!start) {
        platform::Tell(handle(),
                       path + " cannot be read as a screen. It may have been moved or damaged.");
        return;
    }
    bool saved = false;
    const auto keep = [&](platform::WindowHandle owner, const std::vector<std::uint8_t>& file) {
        if (!platform::Confirm(
                owner, "Would you like to save the screen, as it moves now, over " + path + "?",
                platform::DefaultAnswer::Yes))
            return false;
        saved = core::WriteOver(path, file);
        if (!saved)
            platform::Tell(owner, path +
                                      " cannot be written. The disk may be full, or the file "
                                      "protected.");
        return saved;
    };
    animate::FrmAnimate window(std::move(*start), settings_.logoPath, keep);
    window.ShowModal(handle());
    if (saved) AShownScreenWasWritten();
}

}  // namespace vistrel::main_window
