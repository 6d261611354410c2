#include "main_window/tool_table.h"

#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

// The order is that of the dispatch; the pictures are numbered as they stand in the strip.
constexpr controls::Tool kTools[] = {
    {"MnuLogo", 0, "&Logo", "", "Logo", -1, "LogoBand"},
    {"MnuOptions", 0, "&Options", "", "Options", -1, "OptionsBand"},
    {"MnuHelp", 0, "&Help", "", "Help", -1, "HelpBand"},
    {"ToolRename", ID_ToolRename, "&Rename", "Rename selected logo set", "Logo", 0, "", "F2"},
    {"ToolDelete", ID_ToolDelete, "D&elete", "Delete selected logo set", "Logo", 1, "", "Del"},
    {"ToolSetDefault", ID_ToolSetDefault, "Set as default", "Set as default", "Logo", 2, ""},
    {"ToolBrowser", ID_ToolBrowser, "Logo &browser...", "Logo browser", "Logo", 3, ""},
    {"ToolExplore", ID_ToolExplore, "&Explore", "Opens the folder in Explorer", "Logo", 4, ""},
    {"ToolRefresh", ID_ToolRefresh, "&Refresh", "Refreshed the logo sets list", "Logo", 5, "",
     "F5"},
    {"ToolListView", ID_ToolListView, "View as &list", "", "Options", -1, ""},
    {"ToolReportView", ID_ToolReportView, "View as &report", "", "Options", -1, ""},
    {"ToolShowCurrent", ID_ToolShowCurrent, "Show current &logo setting",
     "Show current logo setting", "Options", 6, ""},
    {"ToolRandom", ID_ToolRandom, "Rando&m Change", "Random change", "Options", 7, ""},
    {"ToolPrefer", ID_ToolPrefer, "&Preferences...", "", "Options", 10, ""},
    // Quirk: this one and the last do nothing (Dispatch.TheRestDoesNothing).
    {"Online", ID_Online, "&Online check...", "", "Options", -1, ""},
    {"ToolContents", ID_ToolContents, "Contents", "Contents", "Logo", 8, "", "F1"},
    {"ToolTutorial", ID_ToolTutorial, "Tutorial", "Tutorial", "Logo", 11, ""},
    {"ToolAbout", ID_ToolAbout, "About...", "About...", "Logo", 9, ""},
    {"ToolBug", ID_ToolBug, "&Bug report", "", "Logo", 12, ""},
    {"MnuExit", ID_MnuExit, "E&xit", "", "Logo", -1, ""},
    {"WhatIsThis", ID_WhatIsThis, "What's this?", "", "Help", -1, ""},
};

const controls::Band kBands[] = {
    {"LogoBand",
     controls::BandKind::DropDown,
     {"ToolRename", "ToolDelete", "ToolSetDefault", "ToolBrowser", "ToolExplore", "ToolRefresh"}},
    {"OptionsBand",
     controls::BandKind::DropDown,
     {"ToolListView", "ToolReportView", "ToolShowCurrent", "ToolRandom", "ToolPrefer"}},
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

std::span<const controls::Tool> MainTools() { return kTools; }

std::span<const controls::Band> MainBands() { return kBands; }

}  // namespace vistrel::main_window
