// "Adjust picture": what of a picture comes onto the screen, in which light and with which text,
// seen as the screen will be.
#pragma once

#include <functional>
#include <optional>
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
#include "controls/picture_box.h"
#include "controls/tab_strip.h"
#include "controls/timer.h"
#include "controls/track_bar.h"
#include "controls/window.h"

namespace vistrel {

class FrmAdjust : public Window {
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

    PictureBox ScreenBox;
    HoldButton BtnOriginal;
    Label LblHint;
    TabStrip AdjustPages;
    Button BtnOK;
    Button BtnCancel;

    OptionButton OptFraming[3];  ///< in the order of compose::FramingKind
    Label LblZoom;
    Label LblZoomValue;
    TrackBar ZoomBar;
    Label LblBorder;
    ComboBox BorderKind;
    Label BorderSwatch;
    Button BtnBorderColor;
    Button BtnTurnLeft;
    Button BtnTurnRight;
    CheckBox ChkMirror;

    Label LblLight[4];  ///< brightness, contrast, gamma, saturation
    Label LblLightValue[4];
    TrackBar LightBar[4];
    CheckBox ChkAuto;
    Label LblDither;
    ComboBox DitherKind;
    Button BtnReset;

    Label LblLines;
    ListView TextLines;
    Button BtnAddLine;
    Button BtnEditLine;
    Button BtnDeleteLine;
    Button BtnReadyMade;
    Button BtnFont;
    Button BtnTextColor;
    Label TextSwatch;
    Label LblEdge;
    ComboBox EdgeKind;
    Label LblAlign;
    ComboBox AlignKind;

 protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_KeyDown(int key) override;
    void Form_KeyPress(char character) override;
    bool Form_MouseWheel(int turned, Point screen) override;
    void MenuCommand(int id) override;

 private:
    /// Pages, as the tabs are numbered; what stands on none is always there.
    enum Page { kAlways = 0, kFraming = 1, kLight = 2, kText = 3 };
    struct Row {
        Control& control;
        int id;
        Page page;
        unsigned long help;
        const char* tip;
    };

    void AddRow(const Row& row);
    void AddFrame();
    void AddFraming();
    void AddLight();
    void AddText();
    void FillLists();
    void ShowSettings();
    void GrowToScreen();
    Page CurrentPage() const { return static_cast<Page>(AdjustPages.SelectedIndex()); }
    void ShowPage();
    /// Enables what can be done now, and says how.
    void ShowPossible();
    bool IsPossible(const Control& control) const;
    std::string Hint() const;
    void BtnOK_Click();
    bool IsPictureAsItWas();
    void TellMissingFonts();

    // The screen
    void Changed();
    void ShowQuick();
    void ShowFinished();
    void ShowHeld(bool original);
    void Screen_MouseDown(int button, Point at);
    void Screen_MouseMove(int button, Point at);
    Point ToScreen(Point at) const;
    void TakeFraming(const compose::Framing& framing);
    void MoveByArrow(int across, int down);

    // Framing
    void OptFraming_Click(compose::FramingKind kind);
    void ZoomBar_Change();
    void Zoom(int steps, Point at);
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
    bool TextLines_AfterLabelEdit(const std::string& text);
    /// Draws the selected line anew after `change`.
    void ChangeLine(const std::function<void(TextLine&)>& change);
    void LinesChanged();
    void GrabLine(Point screen);

    std::string source_;
    NewFile newFile_;
    std::string screen_;
    LiveScreen live_;
    compose::Composition composition_;  ///< as it is now, with the lines' masks
    std::vector<DrawnLine> lines_;
    std::vector<Control*> pages_[4];
    RgbPicture finished_;      ///< what ShowFinished showed last, in the box's size
    bool unfinished_ = false;  ///< the original is shown over something that has changed since
    Timer restTimer_;
    MenuHandle readyMade_;
    bool fontsTold_ = false;

    // While something is dragged
    Point pressedAt_;            ///< in the box
    compose::Framing pressed_;   ///< what the framing was then
    Point grabbed_;              ///< from the pointer to the line's place, in pixels of the screen
    bool draggingLine_ = false;  ///< the selected one
};

}  // namespace vistrel
