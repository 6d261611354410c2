// A box that shows a picture. Its window text is its tag: the path of the file that it shows. Where
// the template makes it a tab stop, keys stand for the mouse's buttons while it shows a picture.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace vistrel::controls {

class PictureBox : public Control {
 public:
    ~PictureBox() override;

    /// Size of the drawing area in pixels.
    int ScaleWidth() const;
    int ScaleHeight() const;
    /// Makes the drawing area this large; the box's place stays.
    void SetScaleSize(Size size);

    /// Takes the picture away. The box then says why it is empty, by its tag: it names no file, one
    /// that is not there, or one that could not be shown.
    void Clear();
    /// A device context of the drawing area's size to draw the next picture into; empty at first.
    /// What is drawn is seen after Keep. Null when the system has no room for so large a picture:
    /// the box then stays empty.
    platform::DeviceContext Canvas();
    /// Makes what was drawn into the canvas the picture.
    void Keep();
    bool HasPicture() const { return hasPicture_; }
    /// True while the user works in the box's window. On a display with a palette its pictures then
    /// bring in their own colours; those of the program's other windows take what is there. Else
    /// two windows of different colours would repaint each other endlessly.
    bool InActiveWindow() const;
    /// From now on the picture is shown in colours that are there already: beside another box of
    /// the window that brings in its own.
    void LeaveColors() { leavesColors_ = true; }
    /// Paints the drawing area in place of the picture while it is set.
    std::function<void(platform::DeviceContext target)> PaintInstead;

    /// Whether the pointer shows over the picture that it can be moved about.
    void SetMovable(bool movable) { movable_ = movable; }
    /// Shows no pointer over the box from now on.
    void HidePointer();
    bool SetPointer() override;

    /// A point of the drawing area as one of the screen.
    Point OnScreen(Point at) const;

    std::string Tag() const { return Text(); }
    void SetTag(const std::string& tag);

 protected:
    bool HoldsMouse() const override { return MouseUp != nullptr; }
    void OnAttach() override;
    bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                   std::intptr_t& result) override;

 private:
    bool OnKeyboard(unsigned message, std::uintptr_t key);
    void DrawFocusMark(platform::DeviceContext target) const;
    void LetTabStop();
    void ReleaseCanvas();
    void Paint(platform::DeviceContext target);
    void PaintEmpty(platform::DeviceContext target) const;
    void FindWhyEmpty();

    static constexpr const char* kNoPicture = "no picture";

    bool hasPicture_ = false;
    bool movable_ = false;
    bool pointerHidden_ = false;
    bool leavesColors_ = false;
    const char* whyEmpty_ = kNoPicture;
    bool tabStop_ = false;    ///< its template lets Tab stop here
    bool spaceDown_ = false;  ///< and not up again, with the focus here all the time
    platform::DeviceContext canvas_ = nullptr;
    platform::BitmapHandle bitmap_ = nullptr;
    void* formerBitmap_ = nullptr;
    Size canvasSize_;
};

/// Makes the window class that templates name "PictureBox" known to the system.
void RegisterPictureBoxClass();

}  // namespace vistrel::controls
