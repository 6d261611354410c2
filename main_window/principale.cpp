#include "main_window/principale.h"

#include <algorithm>
#include <utility>

#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "controls/window_place.h"
#include "core/boot_option.h"
#include "core/close.h"
#include "core/generali.h"
#include "core/interrupted_work.h"
#include "core/library.h"
#include "core/running_instance.h"
#include "help/context_numbers.h"
#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

constexpr long kToolbarTransparent = 0xFF00FF;
constexpr int kTwipsPerInch = 1440;
/// The editor opens this many milliseconds after its command, once the click has fully returned.
constexpr unsigned kBrowserDelay = 50;
/// A timer's tick comes when all else is done: the window is there, and drawn.
constexpr unsigned kNoDelay = 1;
/// The list follows the box "Find:" when nothing has been typed for so long: while a word is
/// typed, a list of thousands would be filled for each letter.
constexpr unsigned kFindDelay = 60;
/// Screens are compared with their kept pictures when the list has been scrolled so long ago.
constexpr unsigned kRestDelay = 200;
/// In the program's folder.
constexpr const char* kThumbnailFile = "thumbnails.dat";

}  // namespace

Principale::Principale(core::SystemLocations locations)
    : Window(core::kMainWindowClass, IDD_Principale),
      ActiveBar1(BarTools(), MainBands()),
      Timer1(kBrowserDelay),
      dropTimer_(kNoDelay),
      compareTimer_(kNoDelay),
      idleTimer_(kNoDelay),
      restTimer_(kRestDelay),
      findTimer_(kFindDelay),
      severalTimer_(kNoDelay),
      locations_(std::move(locations)),
      thumbnails_(
          MyList, idleTimer_, restTimer_,
          [this](const std::string& set) {
              return core::LogoSet{settings_.logoPath, set}.Screens()[0];
          },
          locations_.programFolder + kThumbnailFile),
      columns_(MyList, [this](const std::string& name) {
          return core::LogoSet{settings_.logoPath, name};
      }) {
    // The list and the pictures have menus of their own at the right button, and F1 means the
    // help's contents here: only what cannot have the focus answers what it is.
    const controls::Part parts[] = {
        {MyList, ID_MyList},
        {Imag[0], ID_Imag},
        {Imag[1], ID_Imag + 1},
        {Imag[2], ID_Imag + 2},
        {LblScreen[0], ID_LblScreen},
        {LblScreen[1], ID_LblScreen + 1},
        {LblScreen[2], ID_LblScreen + 2},
        {DefaultLogo, ID_DefaultLogo, help_number::DefaultLogo, "Default logo set"},
        {LblDefaultLogo, ID_LblDefaultLogo},
        {LblFaults, ID_LblFaults, help_number::LblFaults},
        {LogoType, ID_LogoType, help_number::LogoType},
        {NumLogo, ID_NumLogo, help_number::NumLogo},
        {LblDoing, ID_LblDoing, help_number::StatusLine},
        {DoingFrame, ID_DoingFrame},
        {LblSelected, ID_LblSelected, help_number::StatusLine},
        {SelectedFrame, ID_SelectedFrame},
        {BtnStopLooking, ID_BtnStopLooking, help_number::BtnStopLooking,
         "Ends the comparing of sets"},
        {LblFind, ID_LblFind, help_number::FindBox},
        {FindBox, ID_FindBox, help_number::FindBox, "Shows the sets whose names hold this text"},
    };
    AddParts(parts);
    Add(Timer1);
    Add(dropTimer_);
    Add(compareTimer_);
    Add(idleTimer_);
    Add(restTimer_);
    Add(findTimer_);
    Add(severalTimer_);

    ActiveBar1.Click = [this](const controls::Tool& tool) { ActiveBar1_Click(tool); };
    ActiveBar1.PreCustomizeMenu = [](bool& cancel) { cancel = true; };
    MyList.ItemClick = [this](int) { MyList_ItemClick(); };
    MyList.MouseDown = [this](int, controls::Point at) { MyList_MouseDown(at); };
    MyList.MouseUp = [this](int button, controls::Point) { MyList_MouseUp(button); };
    MyList.SelectionChanged = [this] { MyList_SelectionChanged(); };
    MyList.DblClick = [this] { MyList_DblClick(); };
    MyList.KeyUp = [this](int key) { MyList_KeyUp(key); };
    MyList.BeforeLabelEdit = [this] { return MyList_BeforeLabelEdit(); };
    MyList.AfterLabelEdit = [this](const std::string& name) { return MyList_AfterLabelEdit(name); };
    MyList.OLEDragDrop = [this](const std::vector<std::string>& paths) {
        MyList_OLEDragDrop(paths);
    };
    MyList.BeginDrag = [this] { MyList_BeginDrag(); };
    MyList.HeadingClick = [this](int column) { MyList_HeadingClick(column); };
    FindBox.Change = [this] { FindBox_Change(); };
    findTimer_.Tick = [this] { FindTimer_Timer(); };
    severalTimer_.Tick = [this] { ShowOneOfSeveral(); };
    MyList.PaintPicture = [this](platform::DeviceContext target, int index, controls::Point at) {
        return thumbnails_.Paint(target, index, at);
    };
    MyList.PictureMarks = [this](int index) { return MarksOf(index); };
    MyList.Zoom = [this](int steps) { ZoomThumbnails(steps); };
    MyList.ContextMenu = [this](controls::Point screen, bool byKeyboard) {
        if (byKeyboard && !savedView_) ActiveBar1.PopUp("LogoBand", screen);
    };
    for (int i = 0; i < 3; ++i)
        Imag[i].MouseUp = [this, i](int button, controls::Point at) {
            Imag_MouseUp(i, button, at);
        };
    Timer1.Tick = [this] { Timer1_Timer(); };
    BtnStopLooking.Click = [this] { BtnStopLooking_Click(); };
    compareTimer_.Tick = [this] { CompareTimer_Timer(); };
    dropTimer_.Tick = [this] {
        dropTimer_.SetEnabled(false);
        MyList.AcceptDrops();
    };
}

Principale::~Principale() = default;

// Every step is done whether or not the ones before it succeeded.
void Principale::Form_Load() {
    classicMenus_ = controls::LoadMenuResource(IDM_Principale);
    ActiveBar1.Attach(*this, ID_ActiveBar1, IDB_Toolbar, kToolbarTransparent);
    MyList.LoadIcons(IDB_List, kToolbarTransparent, {"singlelogo", "multilogo", kInstalledMark});
    DefaultLogo.SetFont({.bold = true});
    DefaultLogo.SetForeColor(controls::kBlue);
    LblFaults.SetForeColor(controls::kDarkRed);

    locations_.startupFolder = core::GetStartupFolder();
    for (int i = 0; i < 3; ++i)
        LblScreen[i].SetText(std::string(core::kScreenFileNames[i]) + "\r\n" +
                             core::kScreenTitles[i]);
    const int margin = 600 * controls::PixelsPerInch() / kTwipsPerInch;
    MyList.AddColumn("Logoset name", MyList.Bounds().width - margin);
    MyList.FillWithColumn();
    bootLogoOption_ = core::ReadBootLogoOption(locations_.BootConfigurationFile());

    settings_ = core::LoadSettings(locations_);
    core::EndInterruptedWork(locations_, settings_);
    MyList.SetPictureSize(SetThumbnails::SizeOf(settings_.thumbnailSize));
    const bool thumbnails = settings_.thumbnails == 1;
    const bool details = settings_.details == 1;
    ItmViewType_Click(settings_.view);
    if (thumbnails) ViewAsThumbnails();
    if (details) ViewAsDetails();
    ShowCustomProgramName();
    SetAnimationShown(settings_.autoshowAnimation != 0);
    PutBackWindow();
    // The boxes have their real sizes before anything is drawn into them.
    Form_Resize(ClientSize());
    LeggiDatiDisco();
    dropTimer_.SetEnabled(true);
}

void Principale::PutBackWindow() {
    if (settings_.windowWidth > 0)
        controls::PlaceWithin(handle(),
                              {settings_.windowLeft, settings_.windowTop, settings_.windowWidth,
                               settings_.windowHeight},
                              controls::WorkArea());
    else
        // With large fonts the window would be wider than a screen of 800 x 600.
        FitInto(controls::WorkArea());
}

// Neither the focus nor the whole screen is for a window that is not shown yet.
void Principale::Form_Activate() {
    if (std::exchange(hasBeenShown_, true)) return;
    MyList.Focus();
    if (settings_.windowMaximized) controls::Maximize(handle());
}

bool Principale::Form_Unload() {
    CloseAll();
    return true;
}

void Principale::CloseAll() {
    core::ClosingState state;
    if (bootLogoOptionChanged_) state.changedBootOption = bootLogoOption_;
    state.companionWanted = companionWanted_;
    state.settings = settings_;
    state.settings.defaultLogoSet = InstalledSet().value_or("");
    const controls::WindowPlace place = controls::PlaceOf(handle());
    state.settings.windowLeft = static_cast<std::int16_t>(place.normal.left);
    state.settings.windowTop = static_cast<std::int16_t>(place.normal.top);
    state.settings.windowWidth = static_cast<std::int16_t>(place.normal.width);
    state.settings.windowHeight = static_cast<std::int16_t>(place.normal.height);
    state.settings.windowMaximized = place.maximized ? 1 : 0;
    state.settings.autoshowAnimation = AnimationShown() ? 1 : 0;
    core::WriteBackOnClose(locations_, state);
}

controls::Size Principale::SmallestSize() const { return {520, 400}; }

// The list and the screens share the width; the screens get what their 4:3 shape can use of the
// height: the startup screen with its label beside it, the other two below with theirs underneath.
void Principale::Form_Resize(controls::Size client) {
    if (!ActiveBar1.bar()) return;
    const int gap = 8;
    // Where the pictures of the tools and the menu's captions begin.
    const int edge = 4;
    const int line = LblDefaultLogo.Bounds().height;
    const int twoLines = LblScreen[0].Bounds().height;
    const int labelWidth = FromDialogUnits({0, 0, 52, 0}).width;
    client.height = PlaceStatusLine(client);
    const int top = ActiveBar1.Resize() + gap;
    const int height = client.height - top - edge;
    const int leastList = FromDialogUnits({0, 0, 110, 0}).width;

    // The height that a panel of width w takes: line + gap + 3/4 (w - label) + gap
    // + 3/8 (w - gap) + 2 + twoLines.
    const int fixed = line + 2 * gap + 2 + twoLines;
    const int byHeight = (8 * (height - fixed) + 6 * (labelWidth + gap) + 3 * gap) / 9;
    const int panel = std::max(120, std::min(byHeight, client.width - gap - 2 * edge - leastList));
    const int left = client.width - edge - panel;

    const int listWidth = left - gap - edge;
    const int findLabel = LblFind.Bounds().width;
    const int findHeight = FindBox.Bounds().height;
    LblFind.MoveTo({edge, top + (findHeight - line) / 2, findLabel, line});
    FindBox.MoveTo({edge + findLabel + edge, top, listWidth - findLabel - edge, findHeight});
    const int above = findHeight + edge;
    MyList.MoveTo({edge, top + above, listWidth, height - above - line - 4});
    const int below = client.height - edge - line;
    // The count line begins with a blank.
    NumLogo.MoveTo({edge - 2, below, listWidth / 2, line});
    LogoType.MoveTo({edge + listWidth / 2, below, listWidth - listWidth / 2, line});

    const int caption = LblDefaultLogo.Bounds().width;
    LblDefaultLogo.MoveTo({left, top, caption, line});
    DefaultLogo.MoveTo({left + caption, top, panel - caption, line});

    const int bigWidth = panel - labelWidth - gap;
    const int bigTop = top + line + gap;
    Imag[0].MoveTo({left, bigTop, bigWidth, bigWidth * 3 / 4});
    LblScreen[0].MoveTo({left + bigWidth + gap, bigTop, labelWidth, twoLines});
    LblFaults.MoveTo({left + bigWidth + gap, bigTop + twoLines + gap, labelWidth,
                      bigWidth * 3 / 4 - twoLines - gap});
    FitFaults();
    const int smallWidth = (panel - gap) / 2;
    const int smallTop = bigTop + bigWidth * 3 / 4 + gap;
    for (int i = 1; i < 3; ++i) {
        const int x = left + (i - 1) * (smallWidth + gap);
        Imag[i].MoveTo({x, smallTop, smallWidth, smallWidth * 3 / 4});
        LblScreen[i].MoveTo({x, smallTop + smallWidth * 3 / 4 + 2, smallWidth, twoLines});
    }
    RedrawScreens();
    // Controls that were moved over each other have copied what stood there.
    RepaintAll();
}

std::intptr_t Principale::OnNotify(void* header) { return ActiveBar1.OnNotify(header); }

}  // namespace vistrel::main_window
