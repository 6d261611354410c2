// "Adjust picture": what of a picture comes onto the screen, in which light and with which text,
// seen as the screen will be.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "adjust/adjustment.h"
#include "adjust/live_screen.h"
#include "adjust/text_line.h"
#include "controls/button.h"
#include "controls/combo_box.h"
#include "controls/hold_button.h"
#include "controls/label.h"
#include "controls/list_view.h"
#include "controls/owned_handle.h"
#include "controls/picture_box.h"
#include "controls/tab_strip.h"
#include "controls/timer.h"
#include "controls/track_bar.h"
#include "controls/window.h"

namespace vistrel::adjust {

class FrmAdjust : public controls::Window {
 public:
    /// Makes an empty file for the finished screen; empty when there is no room for one.
    using NewFile = std::function<std::string()>;

    FrmAdjust(const Adjustment& start, NewFile newFile);
    ~FrmAdjust() override;

    /// Before the window is opened. False when the picture cannot be read.
    bool ReadPicture();

    /// Once the window is closed: the file of the finished screen, empty when it was cancelled, and
    /// what it was made by.
    const std::string& Screen() const { return screen_; }
    Adjustment Settings() const;

    controls::PictureBox ScreenBox;
    controls::HoldButton BtnOriginal;
    controls::Label LblHint;
    controls::TabStrip AdjustPages;
    controls::Button BtnOK;
    controls::Button BtnCancel;

    controls::OptionButton OptFraming[3];  ///< in the order of compose::FramingKind
    controls::Label LblZoom;
    controls::Label LblZoomValue;
    controls::TrackBar ZoomBar;
    controls::Label LblBorder;
    controls::ComboBox BorderKind;
    controls::Label BorderSwatch;
    controls::Button BtnBorderColor;
    controls::Button BtnTurnLeft;
    controls::Button BtnTurnRight;
    controls::CheckBox ChkMirror;

    controls::Label LblLight[4];  ///< brightness, contrast, gamma, saturation
    controls::Label LblLightValue[4];
    controls::TrackBar LightBar[4];
    controls::CheckBox ChkAuto;
    controls::Label LblDither;
    controls::ComboBox DitherKind;
    controls::Button BtnReset;

    controls::Label LblLines;
    controls::ListView TextLines;
    controls::Button BtnAddLine;
    controls::Button BtnEditLine;
    controls::Button BtnDeleteLine;
    controls::Button BtnReadyMade;
    controls::Button BtnFont;
    controls::Button BtnTextColor;
    controls::Label TextSwatch;
    controls::Label LblEdge;
    controls::ComboBox EdgeKind;
    controls::Label LblAlign;
    controls::ComboBox AlignKind;

 protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_KeyDown(int key) override;
    void Form_KeyPress(char character) override;
    bool Form_MouseWheel(int turned, controls::Point screen) override;
    void MenuCommand(int id) override;

 private:
    /// Pages, as the tabs are numbered; what stands on none is always there.
    enum Page { kAlways = 0, kFraming = 1, kLight = 2, kText = 3 };

    void AddPage(Page page, std::span<const controls::Part> parts);
    void AddFrame();
    void AddFraming();
    void AddLight();
    void AddText();
    void FillLists();
    void ShowSettings();
    Page CurrentPage() const { return static_cast<Page>(AdjustPages.SelectedIndex()); }
    void ShowPage();
    /// Enables what can be done now, and says how.
    void ShowPossible();
    bool IsPossible(const controls::Control& control) const;
    std::string Hint() const;
    std::string PageHint() const;
    void ShowHint();
    void BtnOK_Click();
    bool IsPictureAsItWas();
    void TellMissingFonts();

    // The screen
    void Changed();
    void ShowQuick();
    void ShowFinished();
    void ShowHeld(bool original);
    void Screen_MouseDown(int button, controls::Point at);
    void Screen_MouseMove(int button, controls::Point at);
    controls::Point ToScreen(controls::Point at) const;
    void TakeFraming(const compose::Framing& framing);
    void MoveByArrow(int across, int down);

    // Framing
    void OptFraming_Click(compose::FramingKind kind);
    void ZoomBar_Change();
    void Zoom(int steps, controls::Point at);
    void ShowZoom();
    void BorderKind_Click();
    void BtnBorderColor_Click();
    void Turn(int quarters);
    void ChkMirror_Click();

    // Light
    void LightBar_Change();
    void ShowLight();
    void ShowLightValues();
    void BtnReset_Click();

    // Text
    void ConnectText();
    std::optional<std::size_t> SelectedLine() const;
    void SelectLine(std::size_t index);
    void ShowLine();
    void AddLine(const std::string& text);
    void BtnAddLine_Click();
    void BtnDeleteLine_Click();
    void BtnReadyMade_Click();
    void BtnFont_Click();
    void BtnTextColor_Click();
    void TextLines_LabelChange(const std::string& text);
    /// Draws the selected line anew after `change`.
    void ChangeLine(const std::function<void(TextLine&)>& change);
    void LinesChanged();
    void GrabLine(controls::Point screen);

    std::string source_;
    NewFile newFile_;
    std::string screen_;
    LiveScreen live_;
    compose::Composition composition_;  ///< as it is now, with the lines' masks
    std::vector<DrawnLine> lines_;
    std::vector<controls::Control*> pages_[4];
    pictures::RgbPicture finished_;  ///< what ShowFinished showed last, in the box's size
    bool unfinished_ = false;  ///< the original is shown over something that has changed since
    controls::Timer restTimer_;
    controls::OwnedMenu readyMade_;
    bool fontsTold_ = false;

    // While something is dragged
    controls::Point pressedAt_;  ///< in the box
    compose::Framing pressed_;   ///< what the framing was then
    controls::Point grabbed_;    ///< from the pointer to the line's place, in pixels of the screen
    bool draggingLine_ = false;  ///< the selected one
};

}  // namespace vistrel::adjust
