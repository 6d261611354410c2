#include "tests/main_window/tool_words.h"

#include "tests/support/user/seen.h"

namespace vistrel::test {

using main_window::Principale;

void ExpectTool(Principale& main, const ToolWords& words) {
    SCOPED_TRACE(words.name);
    const controls::Tool* tool = main.ActiveBar1.ToolOfName(words.name);
    ASSERT_NE(tool, nullptr);
    EXPECT_EQ(tool->id, words.id);
    EXPECT_STREQ(tool->tip, words.tip);
    EXPECT_STREQ(tool->category, words.category);
    const HWND bar = main.ActiveBar1.bar();
    for (const seen::ToolButton& button : seen::ButtonsOf(bar)) {
        if (button.id != words.id) continue;
        EXPECT_EQ(seen::TipAt(seen::CentreOfButton(bar, words.id)), words.tip);
    }
}

void ExpectTools(Principale& main, std::size_t menu, std::span<const ToolWords> tools) {
    const auto rows = seen::RowsOf(seen::RowsOf(GetMenu(main.handle())).at(menu).opens);
    ASSERT_EQ(rows.size(), tools.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].separator, *tools[i].name == 0);
        if (rows[i].separator) continue;
        EXPECT_EQ(rows[i].id, static_cast<unsigned>(tools[i].id));
        EXPECT_EQ(rows[i].text, tools[i].menuText);
        ExpectTool(main, tools[i]);
    }
}

Commanding::Commanding() { DeleteFileA("C:\\arguments.txt"); }

void Commanding::ForEach(const std::vector<int>& ids,
                         const std::function<void(Principale& main, int id)>& act) {
    for (const int id : ids) {
        SCOPED_TRACE("command " + std::to_string(id));
        WithMainWindow([&](Principale& main) { act(main, id); });
    }
}

void Commanding::ExpectOpens(const std::vector<int>& ids, const char* windowClass) {
    ForEach(ids, [&](Principale& main, int id) {
        StartCommand(main, id);
        const HWND opened = user::WaitForTop(windowClass);
        EXPECT_NE(opened, nullptr);
        EXPECT_FALSE(IsWindowEnabled(main.handle()));
        PostMessageA(opened, WM_CLOSE, 0, 0);
        const auto box = user::WaitForBox(0, 300);  // a loaded set may be asked about
        if (box.window) user::AnswerBox(IDYES);
        EXPECT_TRUE(user::WaitUntilGone(opened));
    });
}

std::string Commanding::Recorded() {
    WaitUntil([] { return Contents("C:\\arguments.txt").value_or("") != ""; });
    const std::string arguments = Contents("C:\\arguments.txt").value_or("");
    DeleteFileA("C:\\arguments.txt");
    return arguments;
}

}  // namespace vistrel::test
