#include "main_window/tool_table.h"

#include "main_window/principale.h"
#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

const controls::Band kBands[] = {
    {"LogoBand",
     controls::BandKind::DropDown,
     {"ToolRename", "ToolDelete", "ToolSetDefault", "ToolBrowser", "ToolExplore", "ToolRefresh", "",
      "ToolExport", "ToolImport", "", "ToolUndoInstall"}},
    {"OptionsBand",
     controls::BandKind::DropDown,
     {"ToolListView", "ToolReportView", "ToolShowCurrent", "ToolRandom", "ToolPrefer", "",
      "ToolThumbnailView", "ToolLargerThumbnails", "ToolSmallerThumbnails"}},
    {"HelpBand",
     controls::BandKind::DropDown,
     {"ToolContents", "ToolTutorial", "ToolBug", "ToolAbout"}},
    {"MainMenu", controls::BandKind::MenuBar, {"MnuLogo", "MnuOptions", "MnuHelp", "MnuExit"}},
    {"BarMain",
     controls::BandKind::ButtonBar,
     {"ToolRename", "ToolDelete", "ToolSetDefault", "", "ToolBrowser", "ToolRefresh", "",
      "ToolShowCurrent", "ToolRandom", "", "ToolContents", "ToolAbout"}},
};

}  // namespace

std::span<const controls::Band> MainBands() { return kBands; }

// The order is that of the dispatch. Those without work open a band, or stand in none.
constinit const MainTool Principale::kTools[] = {
    {{"MnuLogo", 0, "&Logo", "", "Logo", controls::kNoPicture, "", "LogoBand"},
     &Principale::NoWork,
     kNoItem,
     Needs::SetScreens},
    {{"MnuOptions", 0, "&Options", "", "Options", controls::kNoPicture, "", "OptionsBand"},
     &Principale::NoWork},
    {{"MnuHelp", 0, "&Help", "", "Help", controls::kNoPicture, "", "HelpBand"},
     &Principale::NoWork},
    {{"ToolRename", ID_ToolRename, "&Rename", "Rename selected logo set", "Logo", PICTURE_Rename,
      "F2"},
     &Principale::ItmRename_Click,
     ID_ItmRename,
     Needs::SelectedSet},
    {{"ToolDelete", ID_ToolDelete, "D&elete", "Delete selected logo set", "Logo", PICTURE_Delete,
      "Del"},
     &Principale::ItmDelete_Click,
     ID_ItmDelete,
     Needs::SelectedSet},
    {{"ToolSetDefault", ID_ToolSetDefault, "Set as default", "Set as default", "Logo",
      PICTURE_SetDefault},
     &Principale::ItmSetDefault_Click,
     ID_ItmSetDefault,
     Needs::SelectedSet},
    {{"ToolBrowser", ID_ToolBrowser, "Logo &browser...", "Logo browser", "Logo", PICTURE_Browser},
     &Principale::ItmLogoManager_Click,
     ID_ItmLogoManager},
    {{"ToolExplore", ID_ToolExplore, "&Explore", "Opens the folder in Explorer", "Logo",
      PICTURE_Explore},
     &Principale::ItmExplore_Click,
     ID_ItmExplore},
    {{"ToolRefresh", ID_ToolRefresh, "&Refresh", "Refreshed the logo sets list", "Logo",
      PICTURE_Refresh, "F5"},
     &Principale::itmRefresh_Click,
     ID_ItmRefresh},
    {{"ToolListView", ID_ToolListView, "View as &list", "", "Options", controls::kNoPicture},
     &Principale::ViewAsList,
     ID_ItmViewType},
    {{"ToolReportView", ID_ToolReportView, "View as &report", "", "Options", controls::kNoPicture},
     &Principale::ViewAsReport,
     ID_ItmViewType + 1},
    {{"ToolShowCurrent", ID_ToolShowCurrent, "Show current &logo setting",
      "Show current logo setting", "Options", PICTURE_ShowCurrent},
     &Principale::ToggleShowCurrent},
    {{"ToolRandom", ID_ToolRandom, "Rando&m Change", "Random change", "Options", PICTURE_Random},
     &Principale::ItmRandomSpin_Click,
     ID_ItmRandomSpin,
     Needs::SetScreens},
    {{"ToolPrefer", ID_ToolPrefer, "&Preferences...", "", "Options", PICTURE_Preferences},
     &Principale::ItmPref_Click,
     ID_ItmPref},
    // Quirk: this one and the last do nothing (ToolTable.TheRestDoesNothing).
    {{"Online", ID_Online, "&Online check...", "", "Options", controls::kNoPicture},
     &Principale::NoWork},
    {{"ToolContents", ID_ToolContents, "Contents", "Contents", "Logo", PICTURE_Contents, "F1"},
     &Principale::ItmContents_Click,
     ID_ItmContents},
    {{"ToolTutorial", ID_ToolTutorial, "Tutorial", "Tutorial", "Logo", PICTURE_Tutorial},
     &Principale::ShowTutorial},
    {{"ToolAbout", ID_ToolAbout, "About...", "About...", "Logo", PICTURE_About},
     &Principale::ItmAbout_Click,
     ID_ItmAbout},
    {{"ToolBug", ID_ToolBug, "&Bug report", "", "Logo", PICTURE_Bug},
     &Principale::ItmBugReport_Click,
     ID_ItmBugReport},
    {{"MnuExit", ID_MnuExit, "E&xit", "", "Logo", controls::kNoPicture},
     &Principale::ItmExit_Click,
     ID_ItmExit},
    {{"ToolExport", ID_ToolExport, "E&xport...", "Export selected logo set", "Logo",
      controls::kNoPicture},
     &Principale::ItmExport_Click,
     ID_ItmExport,
     Needs::SelectedSet},
    {{"ToolImport", ID_ToolImport, "&Import...", "Import logo sets", "Logo", controls::kNoPicture},
     &Principale::ItmImport_Click,
     ID_ItmImport},
    {{"ToolUndoInstall", ID_ToolUndoInstall, "&Undo install", "Bring back the previous screens",
      "Logo", controls::kNoPicture, "Ctrl+Z"},
     &Principale::ItmUndoInstall_Click,
     ID_ItmUndoInstall},
    {{"ToolThumbnailView", ID_ToolThumbnailView, "View as &thumbnails", "", "Options",
      controls::kNoPicture},
     &Principale::ViewAsThumbnails,
     ID_ItmThumbnailView},
    {{"ToolLargerThumbnails", ID_ToolLargerThumbnails, "Lar&ger thumbnails", "", "Options",
      controls::kNoPicture, "Ctrl++"},
     &Principale::LargerThumbnails},
    {{"ToolSmallerThumbnails", ID_ToolSmallerThumbnails, "&Smaller thumbnails", "", "Options",
      controls::kNoPicture, "Ctrl+-"},
     &Principale::SmallerThumbnails},
    {{"WhatIsThis", ID_WhatIsThis, "What's this?", "", "Help", controls::kNoPicture},
     &Principale::NoWork},
};

std::span<const MainTool> Principale::Tools() { return kTools; }

std::vector<controls::Tool> Principale::BarTools() {
    std::vector<controls::Tool> tools;
    for (const MainTool& row : Tools()) tools.push_back(row.tool);
    return tools;
}

}  // namespace vistrel::main_window
