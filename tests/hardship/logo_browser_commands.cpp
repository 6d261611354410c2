// The Logo browser's rows, and those of the windows that it opens.
#include "tests/hardship/window_commands.h"

namespace vistrel::test {

using namespace editor;

namespace {

constexpr const char* kWrittenStays = "what was written before the step that fails stays written";
constexpr const char* kFilesGoOneByOne =
    "its files are erased one after another, and it was asked for";

void PressOk(HWND window) { PostMessageA(window, WM_COMMAND, IDOK, 0); }

}  // namespace

const std::vector<WindowCommands::Row>& WindowCommands::OfLogoBrowser() {
    // Lambdas of this class reach what the fixture does for its own.
    static const auto load = [](Stage& stage) { ChooseSet(*stage.editor, "Red"); };
    static const auto loadAndFill = [](Stage& stage) {
        ChooseSet(*stage.editor, "Red");
        Fill(*stage.editor, "new.sys", 0);
        Fill(*stage.editor, "a.bmp", 1);
    };
    static const auto pick = [](Stage& stage) { Pick(*stage.editor, "a.bmp"); };
    static const auto pickScreen = [](Stage& stage) { Pick(*stage.editor, "damaged.sys"); };
    static const std::vector<Row> rows = {
        {{ID_OkButton},
         "create new set",
         [](Stage& stage) {
             loadAndFill(stage);
             stage.editor->NameLogoSet.SetText("Fresh");
         },
         [](Stage& stage) { Run(*stage.editor, ID_OkButton); },
         {{"Fresh"}, false, kWrittenStays}},
        {{ID_OkButton + 1},
         "update set",
         loadAndFill,
         [](Stage& stage) { Run(*stage.editor, ID_OkButton + 1); },
         {{"Red"}, false, kWrittenStays}},
        {{},
         "update set under another name",
         [](Stage& stage) {
             ChooseSet(*stage.editor, "Red");
             stage.editor->NameLogoSet.SetText("Crimson");
         },
         [](Stage& stage) { Run(*stage.editor, ID_OkButton + 1); }},
        {{ID_EliminaSetBtn},
         "delete set",
         load,
         [](Stage& stage) { Run(*stage.editor, ID_EliminaSetBtn); },
         {{"Red"}, false, kFilesGoOneByOne}},
        {.commands = {ID_ClearAllButton},
         .name = "delete all images",
         .prepare = loadAndFill,
         .run = [](Stage& stage) { Run(*stage.editor, ID_ClearAllButton); },
         .hasOperations = false},
        {{ID_ActButton},
         "save setting",
         [](Stage& stage) {
             Press(stage.editor->OptDefShut);
             Fill(*stage.editor, "new.sys", 2);
         },
         [](Stage& stage) {
             Press(stage.editor->ActButton);
             Press(stage.editor->OptCompSet);
         },
         {{""}, false, kWrittenStays}},
        {{ID_BrowserRefresh},
         "refresh the browser",
         nullptr,
         [](Stage& stage) { Run(*stage.editor, ID_BrowserRefresh); }},
        {{ID_BrowserDelete},
         "delete a picture",
         pickScreen,
         [](Stage& stage) { Run(*stage.editor, ID_BrowserDelete); }},
        {{ID_BrowserRename},
         "rename a picture",
         pickScreen,
         [](Stage& stage) {
             Run(*stage.editor, ID_BrowserRename);
             const HWND list = stage.editor->LogoList.handle();
             const auto edit = reinterpret_cast<HWND>(SendMessageA(list, 0x1000 + 24, 0, 0));
             SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("other.sys"));
             SendMessageA(edit, WM_KEYDOWN, VK_RETURN, 0);
         }},
        {{}, "look at a picture", nullptr, pick},
        {{ID_ItmSetLogo, ID_ItmSetLogo + 1, ID_ItmSetLogo + 2},
         "set as LOGO.SYS",
         pick,
         [](Stage& stage) { Run(*stage.editor, ID_ItmSetLogo); }},
        {{ID_ItmAdjust},
         "adjust",
         pick,
         [](Stage& stage) { Run(*stage.editor, ID_ItmAdjust); },
         {},
         PressOk},
        {{ID_ItmAdjustSlot, ID_ItmAdjustSlot + 1, ID_ItmAdjustSlot + 2},
         "adjust a slot",
         loadAndFill,
         [](Stage& stage) { Run(*stage.editor, ID_ItmAdjustSlot); },
         {},
         PressOk},
        {{ID_ItmManySets}, "make sets of pictures"},
        {{ID_BrowserShowAtStart},
         "show as at start",
         load,
         [](Stage& stage) { Run(*stage.editor, ID_BrowserShowAtStart); }},
        {{ID_BrowserMend},
         "mend a screen",
         pickScreen,
         [](Stage& stage) { Run(*stage.editor, ID_BrowserMend); }},
        {{ID_ItmMoveSelected},
         "moving colours",
         pick,
         [](Stage& stage) { Run(*stage.editor, ID_ItmMoveSelected); },
         {},
         PressOk},
    };
    return rows;
}

}  // namespace vistrel::test
