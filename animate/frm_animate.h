// "Moving colours": what moves on a startup screen, in which colours, seen as it will move.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "animate/document.h"
#include "animate/history.h"
#include "animate/live_movement.h"
#include "animate/moving_view.h"
#include "controls/button.h"
#include "controls/combo_box.h"
#include "controls/label.h"
#include "controls/list_view.h"
#include "controls/owned_handle.h"
#include "controls/picture_box.h"
#include "controls/tab_strip.h"
#include "controls/timer.h"
#include "controls/track_bar.h"
#include "controls/window.h"

namespace vistrel::animate {

class FrmAnimate : public controls::Window {
 public:
    /// Takes the bytes of the finished screen file. False, once `owner` has been told why, when
    /// they could not be kept: the window then stays open.
    using Keep =
        std::function<bool(platform::WindowHandle owner, const std::vector<std::uint8_t>& file)>;

    /// `screens` is the folder in which other screens are looked for first.
    FrmAnimate(Document start, std::string screens, Keep keep);
    ~FrmAnimate() override;

    controls::PictureBox MovingBox;
    controls::Button BtnUndo;
    controls::Button BtnRedo;
    controls::Label LblMovingHint;
    controls::TabStrip MovingPages;
    controls::Button BtnOK;
    controls::Button BtnCancel;

    // What moves
    controls::Label LblLayers;
    controls::ListView Layers;
    controls::Button BtnAddLayer;
    controls::Button BtnDeleteLayer;
    controls::Label LblPattern;
    controls::ComboBox PatternKind;
    controls::Label LblSize;
    controls::Label LblSizeValue;
    controls::TrackBar SizeBar;
    controls::CheckBox ChkReversed;
    controls::Label LblChooseBy;
    controls::ComboBox ChooseBy;
    controls::Label LblTolerance;
    controls::TrackBar ToleranceBar;
    controls::Button BtnAll;
    controls::Button BtnInvert;

    // Colours
    controls::Label LblRun;
    controls::ComboBox RunKind;
    controls::Label LblCount;
    controls::Label LblCountValue;
    controls::TrackBar CountBar;
    controls::PictureBox RingBox;
    controls::Button BtnKey[4];
    controls::Label KeySwatch[4];
    controls::Button BtnMoreKeys;
    controls::Button BtnFewerKeys;
    controls::CheckBox ChkGround;
    controls::Button BtnGround;
    controls::Label GroundSwatch;

    // By hand
    controls::PictureBox BoardBox;
    controls::Label LblEntry;
    controls::Button BtnFirst;
    controls::Button BtnStill;
    controls::Button BtnEntryColor;
    controls::Button BtnExchange;
    controls::Label LblSort;
    controls::Button BtnSort[2];  ///< brightness, hue

 protected:
    void Form_Load() override;
    bool Form_KeyDown(int key) override;
    void MenuCommand(int id) override;

 private:
    /// Pages, as the tabs are numbered; what stands on none is always there.
    enum Page { kAlways = 0, kMoves = 1, kColors = 2, kByHand = 3 };

    void AddPage(Page page, std::span<const controls::Part> parts);
    void AddFrame();
    void AddMoves();
    void AddColors();
    void AddByHand();
    void FillLists();
    Page CurrentPage() const { return static_cast<Page>(MovingPages.SelectedIndex()); }
    void ShowPage();
    /// Shows all that the document says, and enables what can be done now.
    void ShowDocument();
    void ShowPossible();
    bool IsPossible(const controls::Control& control) const;
    bool IsOfSelected(const controls::Control& control) const;
    std::string Hint() const;
    void BtnOK_Click();

    // The document
    using Edit = std::function<void(Document& document)>;
    /// Changes the document, so that it can be undone. What the same hand does in a row, a slider
    /// or the mouse, is one step.
    static constexpr const void* kNobody = nullptr;
    void Change(const void* hand, const Edit& edit);
    void Apply(const void* hand, const Edit& edit);
    void GoBack(bool undo);
    void Changed();
    void ShowQuick();
    void ShowFinished();
    void ShowMarked();
    void ShowScreen(std::optional<screen::IndexedScreen> made);
    screen::Layer* Selected();
    const screen::Layer* Selected() const;
    std::optional<LayerKind> SelectedKind() const;
    Marks MarksNow() const;

    // What moves
    void ConnectMoves();
    void ShowLayers();
    void ShowLayer();
    void FillPatterns();
    void AddLayer(LayerKind kind);
    void AddLayerOfScreen();
    void DeleteLayer();
    void PatternKind_Click();
    void SizeBar_Change();
    void ChangeLayer(const void* hand, const std::function<void(screen::Layer&)>& change);
    void ChangeArea(const void* hand, const screen::Area& area);

    // The mouse and the arrow keys on the screen
    void Screen_MouseDown(int button, controls::Point at);
    void Screen_MouseMove(int button, controls::Point at);
    void Screen_MouseUp();
    void Screen_Space();
    screen::ScreenPoint ToScreen(controls::Point at) const;
    bool ChoosesByColor() const;
    bool ChoosesFreehand() const;
    bool HasCross() const;
    bool HasArea() const;
    void BeginArea(screen::ScreenPoint at, bool shift, bool control);
    void DragArea(screen::ScreenPoint at);
    void PickColor(screen::ScreenPoint at);
    void ToleranceBar_Change();
    screen::Area Combined(screen::Area chosen) const;
    bool GrabBar(screen::ScreenPoint at);
    void DragBar(screen::ScreenPoint at);
    void EndDrag();
    bool GiveUpLine();
    bool ArrowKey(int across, int down);
    void MoveCross(int across, int down);
    void MoveArea(int across, int down);
    void ResizeArea(int across, int down);

    // Colours
    void ShowColors();
    void ShowRing();
    void RunKind_Click();
    void CountBar_Change();
    void BtnKey_Click(int index);
    void ChangeKeys(int by);
    void ChkGround_Click();
    void BtnGround_Click();
    void ChangeRing(const void* hand, const std::function<void(screen::Ring&)>& change);

    // By hand
    void ShowBoard();
    void Board_MouseDown(controls::Point at);
    void MoveOnBoard(int by);
    void Mark(int entry, bool further);
    void ChangeByHand(const std::function<void(screen::IndexedScreen&)>& change);
    void BtnEntryColor_Click();

    Document document_;
    std::string screens_;
    Keep keep_;
    History history_;
    LiveMovement live_;
    MovingView view_;
    screen::IndexedScreen shown_;  ///< what the box shows, before the colours have moved
    std::vector<controls::Control*> pages_[4];
    controls::Timer stepTimer_;
    controls::Timer restTimer_;
    controls::OwnedMenu addMenu_;
    const void* lastHand_ = kNobody;  ///< who changed the document last
    bool filling_ = false;            ///< lists are filled, and nobody has chosen in them

    // While something is dragged
    enum class Drag { None, Bar, Area, LineByKeys };
    enum class Joining { Replace, Add, Remove };
    Drag drag_ = Drag::None;
    bool pressed_ = false;  ///< a button of the mouse is down
    Joining joining_ = Joining::Replace;
    screen::ScreenPoint pressedAt_;
    screen::Area pressedArea_;            ///< what the area was then
    screen::ScreenBounds pressedBounds_;  ///< and its bounds
    int side_[2] = {0, 0};  ///< across, down: -1 the left or upper edge is dragged, 1 the other
    std::vector<screen::ScreenPoint> line_;
    std::optional<screen::ScreenPoint> picked_;  ///< the colour that made the area
    screen::ScreenPoint cross_{pictures::kLogoWidth / 2, pictures::kLogoHeight / 2};

    int entry_ = 0;    ///< marked on the board
    int further_ = 0;  ///< the other end of what is marked
};

}  // namespace vistrel::animate
