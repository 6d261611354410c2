// A text that the user reads, and may click where it is a link.
#pragma once

#include <functional>

#include "controls/control.h"
#include "controls/owned_handle.h"

namespace vistrel::controls {

/// How a label's font differs from the dialog's; 0 points and an empty face keep the dialog's.
struct FontChange {
    bool bold = false;
    bool underline = false;
    int points = 0;
    const char* face = "";
};

/// That of the system's own texts.
inline constexpr long kSystemColor = -1;
/// Link blue.
inline constexpr long kBlue = 0xFF0000;
/// The colour of a warning.
inline constexpr long kDarkRed = 0x000080;

class Label : public Control {
 public:
    /// Colours are 24-bit numbers in blue-green-red order.
    void SetForeColor(long color);
    long ForeColor() const { return color_; }
    void SetBackColor(long color);
    /// Lets what lies behind the label show between its letters. The template gives the label the
    /// style WS_EX_TRANSPARENT, so that it is painted last.
    void SetSeeThrough() { seeThrough_ = true; }
    /// Gives the label a font of its own.
    void SetFont(const FontChange& change);
    /// Whether all of a text would be seen, with its lines broken where they are as long as the
    /// label is wide.
    bool HasRoomFor(const std::string& text) const;
    /// How high the label must be for all of its text, with lines broken to be no wider than this.
    int HeightAt(int width) const;
    /// Makes the label just as wide as its text of one line.
    void FitToText();
    /// Shows the hand over the text, from the program's cursor resource of this name.
    void SetHandPointer(const char* cursorResource);

    /// The template must give the label the style SS_NOTIFY.
    std::function<void()> Click;

    void OnCommand(int code) override;
    long TextColor() const override { return color_; }
    platform::BrushHandle BackBrush() const override;
    bool SetPointer() override;

 private:
    Size RoomNeededBy(const std::string& text, int width) const;

    long color_ = kSystemColor;
    OwnedBrush background_;
    bool seeThrough_ = false;
    OwnedFont font_;
    const char* cursor_ = nullptr;
};

}  // namespace vistrel::controls
