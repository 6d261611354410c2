// The shell's operations and the system's dialogs, answered by a user.
#include "platform/shell.h"

#include <windows.h>

// These need windows.h first.
#include <commctrl.h>
#include <shlobj.h>

#include "platform/fault.h"
#include "platform/files.h"
#include "platform/folder_dialog.h"
#include "platform/message_box.h"
#include "platform/open_dialog.h"
#include "platform/running_window.h"
#include "platform/shell_link.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

using namespace platform;

namespace {

TEST_F(Machine, StartProgramRunsACommandLine) {
    EXPECT_TRUE(StartProgram("cmd.exe /c echo made>" + logos + "made"));
    EXPECT_TRUE(WaitUntil([&] { return !Contents(logos + "made").value_or("").empty(); }));
    EXPECT_FALSE(StartProgram(logos + "gone.exe"));
    fault::FailOperation(1);
    EXPECT_FALSE(StartProgram("cmd.exe /c exit"));
}

TEST_F(Machine, ShellOpenSaysWhenNothingOpens) {
    EXPECT_FALSE(ShellOpen(nullptr, logos + "gone", logos, ShowState::Normal));
    Put(logos + "make.bat", "echo made>made\r\n");
    EXPECT_TRUE(ShellOpen(nullptr, logos + "make.bat", logos, ShowState::Normal));
    EXPECT_TRUE(WaitUntil([&] { return !Contents(logos + "made").value_or("").empty(); }));
}

TEST_F(Machine, ShellCopyOverBringsAFolderWithAllItHoldsAndAsksNothing) {
    PutScreens(boot + "Blue\\", "Blue");
    MakeFolders(boot + "Blue\\inside\\");
    Put(boot + "Blue\\inside\\a", "a");
    EXPECT_TRUE(ShellCopyOver(nullptr, boot + "Blue", logos));
    EXPECT_EQ(NamesIn(logos + "Blue\\"), (Names{"LOGO.SYS", "LOGOS.SYS", "LOGOW.SYS", "inside"}));
    EXPECT_EQ(Contents(logos + "Blue\\inside\\a"), "a");
    Put(boot + "Blue\\LOGO.SYS", "newer");
    EXPECT_TRUE(ShellCopyOver(nullptr, boot + "Blue", logos));
    EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), "newer");
    fault::FailOperation(1);
    EXPECT_FALSE(ShellCopyOver(nullptr, boot + "Blue", logos));
}

/// Presses a button of the topmost dialog of this process.
void PressInDialog(int button) {
    HWND dialog = user::WaitForTop("#32770", "", GetCurrentProcessId());
    WaitUntil(
        [&] { return GetDlgItem(dialog, button) && IsWindowEnabled(GetDlgItem(dialog, button)); });
    PostMessageA(dialog, WM_COMMAND, button, 0);
    user::WaitUntilGone(dialog);
}

/// Deletes paths into the bin, and a user answers what the shell asks.
bool DeleteAndAnswer(const Names& paths, int button) {
    user::Meanwhile user([=] { PressInDialog(button); });
    const bool deleted = ShellDeleteToBin(nullptr, paths);
    user.Finish();
    return deleted;
}

TEST_F(Machine, ShellDeleteToBinAsksOnceForAListOfPaths) {
    for (const char* name : {"a", "b", "c"}) Put(logos + name, "");
    EXPECT_TRUE(DeleteAndAnswer({logos + "a", logos + "b"}, IDYES));
    EXPECT_EQ(NamesIn(logos), Names{"c"});
}

TEST_F(Machine, ShellDeleteToBinLeavesWhatTheUserKeeps) {
    Put(logos + "c", "");
    EXPECT_FALSE(DeleteAndAnswer({logos + "c"}, IDNO));
    fault::FailOperation(1);
    EXPECT_FALSE(ShellDeleteToBin(nullptr, {logos + "c"}));
    EXPECT_EQ(NamesIn(logos), Names{"c"});
}

TEST_F(Machine, AShellLinkHoldsWhatItIsGiven) {
    Put(program + "Tool.exe", "");
    const std::string path = startup + "Tool.lnk";
    ASSERT_TRUE(WriteShellLink(path, program + "Tool.exe", "/x", program, "A tool"));

    CoInitialize(nullptr);
    IShellLinkA* link = nullptr;
    ASSERT_EQ(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                               reinterpret_cast<void**>(&link)),
              S_OK);
    IPersistFile* file = nullptr;
    link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    EXPECT_EQ(file->Load(std::wstring(path.begin(), path.end()).c_str(), STGM_READ), S_OK);
    char text[MAX_PATH] = {};
    link->GetPath(text, sizeof text, nullptr, 0);
    EXPECT_EQ(text, program + "Tool.exe");
    link->GetArguments(text, sizeof text);
    EXPECT_STREQ(text, "/x");
    link->GetWorkingDirectory(text, sizeof text);
    EXPECT_EQ(text, program);
    link->GetDescription(text, sizeof text);
    EXPECT_STREQ(text, "A tool");
    file->Release();
    link->Release();
    CoUninitialize();
}

TEST_F(Machine, TheTargetOfAShellLinkIsReadWhetherOrNotItExists) {
    const std::string path = startup + OddName() + ".lnk";
    Put(program + "Tool.exe", "");
    ASSERT_TRUE(WriteShellLink(path, program + "Tool.exe", "/x", program, ""));
    EXPECT_EQ(ShellLinkTarget(path), program + "Tool.exe");
    RemoveTree(program + "Tool.exe");
    EXPECT_EQ(ShellLinkTarget(path), program + "Tool.exe");
    Put(path, "no link at all");
    EXPECT_EQ(ShellLinkTarget(path), "");
    EXPECT_EQ(ShellLinkTarget(startup + "gone.lnk"), "");
    fault::FailOperation(1);
    EXPECT_EQ(ShellLinkTarget(path), "");
}

TEST_F(Machine, AShellLinkIntoAFolderThatIsGoneIsNotWritten) {
    EXPECT_FALSE(WriteShellLink(root + "gone\\Tool.lnk", program + "Tool.exe", "", "", ""));
    EXPECT_FALSE(WriteShellLink(startup + std::string(4000, 'x'), program, "", "", ""));
    EXPECT_EQ(NamesIn(startup), Names{});
}

/// Asks, and a user answers: what the user saw, and what Confirm gave.
struct Asked {
    user::Box box;
    bool yes;
};

Asked AskAndAnswer(int button, const std::function<bool()>& ask) {
    Asked asked;
    user::Meanwhile user([&] { asked.box = user::AnswerBox(button); });
    asked.yes = ask();
    user.Finish();
    return asked;
}

TEST(MessageBoxTest, AQuestionShowsTextTitleAndButtonsAndGivesTheAnswer) {
    const auto [box, yes] =
        AskAndAnswer(IDNO, [] { return Confirm(nullptr, "Really?", DefaultAnswer::Yes); });
    EXPECT_FALSE(yes);
    EXPECT_EQ(box.text, "Really?");
    EXPECT_EQ(box.title, "Vistrel");
    EXPECT_EQ(box.icon, static_cast<unsigned>(MB_ICONQUESTION));
    EXPECT_EQ(box.buttons, (std::vector<int>{IDYES, IDNO}));
    EXPECT_EQ(box.default_button, IDYES);
}

TEST(MessageBoxTest, TheDefaultAnswerMayBeNo) {
    const auto [box, yes] =
        AskAndAnswer(IDYES, [] { return Confirm(nullptr, "Really?", DefaultAnswer::No, "Title"); });
    EXPECT_TRUE(yes);
    EXPECT_EQ(box.title, "Title");
    EXPECT_EQ(box.default_button, IDNO);
}

TEST(MessageBoxTest, WhatIsToldHasAnIconAndOneButton) {
    const std::pair<Icon, unsigned> icons[] = {{Icon::Exclamation, MB_ICONEXCLAMATION},
                                               {Icon::Critical, MB_ICONHAND},
                                               {Icon::Information, MB_ICONASTERISK}};
    for (const auto& [icon, shown] : icons) {
        const user::Box box = AskAndAnswer(IDOK, [icon = icon] {
                                  Tell(nullptr, "It is so.", icon, "Title");
                                  return true;
                              }).box;
        EXPECT_EQ(box.text, "It is so.");
        EXPECT_EQ(box.title, "Title");
        EXPECT_EQ(box.icon, shown);
        EXPECT_EQ(box.buttons, std::vector<int>{IDOK});
    }
}

/// The name of the folder that the folder browser has selected.
std::string SelectedInBrowser(HWND dialog) {
    HWND tree = FindWindowExA(dialog, nullptr, WC_TREEVIEWA, nullptr);
    char text[MAX_PATH] = {};
    TVITEMA item = {};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = TreeView_GetSelection(tree);
    item.pszText = text;
    item.cchTextMax = sizeof text;
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return item.pszText;
}

TEST_F(Machine, PickFolderBeginsAtTheStartFolder) {
    KeepAccessTime(root);
    KeepAccessTime(logos);
    CoInitialize(nullptr);
    user::Meanwhile user([] {
        HWND dialog = user::WaitForTop("#32770", "", GetCurrentProcessId());
        WaitUntil([&] { return SelectedInBrowser(dialog) == "logos"; });
        PressInDialog(IDOK);
    });
    EXPECT_EQ(PickFolder(nullptr, "Choose the folder you want to add", logos), root + "logos");
    user.Finish();
    CoUninitialize();
}

TEST_F(Machine, PickFolderIsEmptyWhenTheUserCancels) {
    CoInitialize(nullptr);
    user::Meanwhile user([] { PressInDialog(IDCANCEL); });
    EXPECT_EQ(PickFolder(nullptr, "Choose", logos), "");
    user.Finish();
    CoUninitialize();
}

/// A request as callers make it: 254 blanks for the path, as many characters for the title.
OpenDialogRequest RequestFor(const std::string& folder) {
    OpenDialogRequest request;
    request.filter = std::string("Applications (*.exe)\0*.exe\0", 27);
    request.title = "Which one?";
    request.initialFolder = folder;
    request.file.assign(254, ' ');
    request.fileTitle.assign(254, '\0');
    return request;
}

TEST_F(Machine, TheOpenDialogFillsTheBuffersAndLeavesItsNul) {
    Put(program + "PAINTER.EXE", "");
    OpenDialogRequest request = RequestFor(program);
    std::string title;
    user::Meanwhile user([&] {
        HWND dialog = user::WaitForTop("#32770", "", GetCurrentProcessId());
        title = user::TextOf(dialog);
        // The box for the name: Wine shows the dialog of later Windows, where it is this one.
        const int nameBox = 0x47c;
        WaitUntil([&] { return GetDlgItem(dialog, nameBox) != nullptr; });
        SendDlgItemMessageA(dialog, nameBox, WM_SETTEXT, 0,
                            reinterpret_cast<LPARAM>("PAINTER.EXE"));
        PressInDialog(IDOK);
    });
    const bool chosen = RunOpenDialog(request);
    user.Finish();
    EXPECT_TRUE(chosen);
    EXPECT_EQ(title, "Which one?");
    EXPECT_EQ(request.file.size(), 254u);
    EXPECT_EQ(request.file.substr(0, request.file.find('\0')), program + "PAINTER.EXE");
    EXPECT_EQ(request.fileTitle.substr(0, request.fileTitle.find('\0')), "PAINTER.EXE");
}

TEST_F(Machine, TheOpenDialogSaysWhenTheUserCancels) {
    OpenDialogRequest request = RequestFor(program);
    user::Meanwhile user([] { PressInDialog(IDCANCEL); });
    EXPECT_FALSE(RunOpenDialog(request));
    user.Finish();
}

TEST(RunningWindowTest, KnowsAWindowOfAClassShownOrHidden) {
    EXPECT_FALSE(WindowOfClassExists("VistrelTestClass"));
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.lpszClassName = "VistrelTestClass";
    RegisterClassA(&windowClass);
    HWND window = CreateWindowA("VistrelTestClass", "", WS_OVERLAPPED, 0, 0, 1, 1, nullptr, nullptr,
                                nullptr, nullptr);
    EXPECT_TRUE(WindowOfClassExists("VistrelTestClass"));
    DestroyWindow(window);
    EXPECT_FALSE(WindowOfClassExists("VistrelTestClass"));
    UnregisterClassA("VistrelTestClass", nullptr);
}

}  // namespace
}  // namespace vistrel::test
