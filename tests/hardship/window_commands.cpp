#include "tests/hardship/window_commands.h"

#include "platform/fault.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;
namespace fault = platform::fault;

namespace {

void PutFiles(const std::string& folder, const Files& files, const Files& now) {
    for (const auto& [name, contents] : now)
        if (!files.contains(name)) RemoveTree(folder + name);
    for (const auto& [name, contents] : files)
        if (!now.contains(name) || now.at(name) != contents) Put(folder + name, contents);
}

void SelectionOfNames(SelPictureForm& editor) {
    for (const char* name : {"Fresh", "Crimson"})
        if (const int at = editor.NameLogoSet.FindItem(name); at >= 0)
            editor.NameLogoSet.RemoveItem(at);
    if (editor.NameLogoSet.FindItem("Red") < 0) editor.NameLogoSet.AddItem("Red");
}

void SettleAll(Stage& stage) {
    SendMessageA(stage.main.handle(), WM_NULL, 0, 0);
    if (stage.editor) SendMessageA(stage.editor->handle(), WM_NULL, 0, 0);
}

}  // namespace

WindowCommands::WindowCommands() {
    Put(pictures + "new.sys", ScreenFile(10, 20, 30));
    Put(pictures + "a.bmp", BmpOf(TestPicture(64, 48)));
    std::string damaged = ScreenFile(40, 50, 60);
    damaged[51] = 1;
    Put(pictures + "damaged.sys", damaged);
    for (const auto& [path, contents] : Look(place_).installed) Put(path, "old");
    before_ = Look(place_);
    pictures_ = ReadLibrary(root)["pictures"];
}

void WindowCommands::OnStage(Table table, const std::function<void(Stage& stage)>& user) {
    if (table == Table::MainWindow)
        WithMainWindow([&](Principale& main) {
            Stage stage{main};
            user(stage);
        });
    else
        WithEditor([&](Principale& main, SelPictureForm& editor) {
            Stage stage{main, &editor};
            user(stage);
        });
}

void WindowCommands::PutBack(Stage& stage) {
    fault::Reset();
    const Library now = ReadLibrary(logos);
    for (const auto& [name, files] : now)
        if (!before_.sets.contains(name)) RemoveTree(logos + name);
    for (const auto& [name, files] : before_.sets) {
        const std::string folder = name.empty() ? logos : logos + name + "\\";
        MakeFolders(folder);
        PutFiles(folder, files, now.contains(name) ? now.at(name) : Files());
    }
    PutFiles(pictures, pictures_, ReadLibrary(root)["pictures"]);
    for (const auto& [path, contents] : before_.installed) Put(path, contents);
    RemoveTree(program + "Previous screens");
    core::Settings& settings = stage.main.Preferences();
    settings.confirmLogosetDelete = 0;
    settings.deleteInTheRecycleBin = 0;
    settings.bootRoot = boot;
    settings.logoPath = logos;
    RunOnThreadOf(stage.main.handle(), [&] {
        stage.main.SetInstalledSet("Blue");
        stage.main.LeggiDatiDisco();
        stage.main.SelItem("Red");
    });
    if (stage.editor) {
        stage.editor->CurrentFolder = pictures;
        Run(*stage.editor, ID_ClearAllButton);
        Run(*stage.editor, ID_BrowserRefresh);
        SelectionOfNames(*stage.editor);
    }
}

int WindowCommands::RunRow(const Row& row, Stage& stage, const std::function<void()>& fail) {
    PutBack(stage);
    if (row.prepare) row.prepare(stage);
    SettleAll(stage);
    start_ = Look(place_);
    const Answering answering(root + "given.zip", row.inWindow);
    fail();
    row.run(stage);
    SettleAll(stage);
    const int counted = fault::Counted();
    fault::Reset();
    filesGiven_ += answering.FilesGiven();
    return counted;
}

}  // namespace vistrel::test
