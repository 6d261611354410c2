// A user composes logo sets of pictures in the Logo browser.
#include <cstdlib>

#include "adjust/text_line.h"
#include "pictures/compose/stages.h"
#include "pictures/convert.h"
#include "pictures/preview/draw_letters.h"
#include "pictures/read_picture.h"
#include "resources/ids.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {

using namespace adjust;
using namespace preview;

using namespace pictures;

namespace {

const std::string kPictures = "C:\\test\\pictures\\";

/// How far the colours of two pictures of one size lie apart on the average (0 to 255).
double Difference(const RgbPicture& a, const RgbPicture& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i) sum += std::abs(a.pixels[i] - b.pixels[i]);
    return sum / static_cast<double>(a.pixels.size());
}

class Composing : public RunningProgram {
 protected:
    Composing() { Store("SearchLogoPath", TextValue(kPictures)); }

    HWND Part(int id) { return user::Control(editor_, id); }

    bool OpenBrowser(HWND main) {
        PressToolbarButton(main, 3, 1);
        editor_ = user::WaitForTop("SelPictureForm", "Logo browser", process);
        return editor_ != nullptr && user::Activate(editor_);
    }

    /// Selects the picture at this place below ".." by the keyboard.
    void SelectPicture(int place, const std::string& name) {
        RECT r{};
        GetWindowRect(Part(ID_LogoList), &r);
        user::ClickAt({r.left + 40, r.top + 10});
        user::Press(VK_HOME);
        for (int i = 0; i < place; ++i) user::Press(VK_DOWN);
        EXPECT_TRUE(WaitUntil([&] { return LabelOf(editor_, ID_CurView) == kPictures + name; }))
            << name;
    }

    void DragIntoSlot(int slot) {
        const std::string before = LabelOf(editor_, ID_ImgPreview + slot);
        user::Drag(user::CentreOf(Part(ID_CurView)), user::CentreOf(Part(ID_ImgPreview + slot)));
        EXPECT_TRUE(WaitUntil([&] {
            const std::string tag = LabelOf(editor_, ID_ImgPreview + slot);
            return tag != before && tag.find("~tm") != std::string::npos;
        })) << slot;
    }

    void TypeName(const std::string& name) {
        RECT r{};
        GetWindowRect(Part(ID_NameLogoSet), &r);
        user::ClickAt({r.left + 20, (r.top + r.bottom) / 2});
        user::Press(VK_END);
        user::Press(VK_HOME, {VK_SHIFT});
        user::Type(name);
        EXPECT_TRUE(WaitUntil([&] { return LabelOf(editor_, ID_NameLogoSet) == name; })) << name;
    }

    /// Chooses the command at this place (from 1) of the Action menu.
    void ChooseAction(int place) {
        EXPECT_TRUE(user::Click(Part(ID_ActButton)));
        const HWND menu = user::WaitForTop("#32768", "", process);
        EXPECT_NE(menu, nullptr);
        for (int i = 0; i < place; ++i) user::Press(VK_DOWN);
        user::Press(VK_RETURN);
    }

    /// Whether the set's screen is a screen file of this picture.
    bool IsScreenOf(const std::string& screen, const std::string& name) {
        if (Contents(screen).value_or("").size() != 129078) return false;
        const auto made = ReadPictureScaled(screen, 320, 400);
        const auto source = ReadPictureScaled(kPictures + name, 320, 400);
        return made && source && Difference(made->picture, source->picture) < 6;
    }

    /// Opens "Adjust picture" on the selected picture; null if it did not come.
    HWND OpenAdjust() {
        EXPECT_TRUE(user::Click(Part(ID_AdjustButton)));
        const HWND window = user::WaitForTop("FrmAdjust", "Adjust picture", process);
        return window && user::Activate(window) ? window : nullptr;
    }

    /// Adds a line of text on the page of the text.
    static void AddLine(HWND window, const std::string& text) {
        const HWND lines = user::Control(window, ID_TextLines);
        const auto label = [&] { return FindWindowExA(lines, nullptr, "Edit", nullptr); };
        EXPECT_TRUE(user::Click(user::Control(window, ID_BtnAddLine)));
        EXPECT_TRUE(WaitUntil([&] { return label() != nullptr; }));
        user::Type(text);
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return label() == nullptr; }));
    }

    HWND editor_ = nullptr;
};

constexpr int kCreate = 1;
constexpr int kUpdate = 2;
constexpr int kDelete = 3;

TEST_F(Composing, BuildsSetsByDraggingPicturesAndUpdatesConvertsAndDeletesThem) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return LabelOf(main, ID_NumLogo) == " 10 logo sets"; }));
    ASSERT_TRUE(OpenBrowser(main));

    // A set of a JPG, a GIF and a BMP picture.
    SelectPicture(2, "Lighthouse.jpg");
    DragIntoSlot(0);
    SelectPicture(3, "Stained Glass.gif");
    DragIntoSlot(1);
    SelectPicture(1, "Balloons.bmp");
    DragIntoSlot(2);
    TypeName("Trip");
    ChooseAction(kCreate);
    EXPECT_TRUE(WaitUntil([&] { return IsScreenOf(logos + "Trip\\LOGOS.SYS", "Balloons.bmp"); }));
    EXPECT_TRUE(IsScreenOf(logos + "Trip\\LOGO.SYS", "Lighthouse.jpg"));
    EXPECT_TRUE(IsScreenOf(logos + "Trip\\LOGOW.SYS", "Stained Glass.gif"));
    user::TakeShot("story_composed", editor_);

    // The same under another name, with another wait screen.
    TypeName("Keep");
    ChooseAction(kCreate);
    EXPECT_TRUE(WaitUntil([&] { return Exists(logos + "Keep\\LOGOS.SYS"); }));
    SelectPicture(4, "Tulips.bmp");
    DragIntoSlot(1);
    ChooseAction(kUpdate);
    EXPECT_TRUE(WaitUntil([&] { return IsScreenOf(logos + "Keep\\LOGOW.SYS", "Tulips.bmp"); }));
    EXPECT_TRUE(IsScreenOf(logos + "Trip\\LOGOW.SYS", "Stained Glass.gif"));

    // Startup screen only.
    EXPECT_TRUE(user::ClickToMark(Part(ID_OptOnlyStart)));
    EXPECT_TRUE(WaitUntil([&] { return !IsWindowVisible(Part(ID_ImgPreview + 1)); }));
    ChooseAction(kUpdate);
    EXPECT_TRUE(WaitUntil(
        [&] { return NamesIn(logos + "Keep.sls\\") == std::vector<std::string>{"LOGO.SYS"}; }));
    EXPECT_FALSE(Exists(logos + "Keep"));

    // Into the recycle bin: the program asks, then the shell.
    ChooseAction(kDelete);
    EXPECT_EQ(user::AnswerBox(IDYES, process).title, "Confirm deletions");
    EXPECT_TRUE(user::AnswerShell(IDYES, process));
    EXPECT_TRUE(WaitUntil([&] { return !Exists(logos + "Keep.sls"); }));

    EXPECT_TRUE(user::Click(Part(ID_CloseButton)));
    EXPECT_TRUE(user::WaitUntilGone(editor_));
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_NumLogo) == " 11 logo sets"; }));
    Close();
    EXPECT_TRUE(Exists(logos + "Trip"));
    EXPECT_EQ(Stored("SearchLogoPath"), SavedText(kPictures));
}

TEST_F(Composing, AdjustsAPhotographForTheWaitScreen) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    ASSERT_TRUE(OpenBrowser(main));
    SelectPicture(2, "Lighthouse.jpg");
    const HWND window = OpenAdjust();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(user::ClickToMark(user::Control(window, ID_OptFraming + 1)));
    const HWND box = user::Control(window, ID_ScreenBox);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(user::Control(window, ID_ZoomBar)); }));
    RECT shown{};
    GetClientRect(box, &shown);
    const POINT middle = user::CentreOf(box);
    user::Drag(middle, {middle.x + 30, middle.y - 40});
    user::Press(VK_TAB, {VK_CONTROL});
    user::Press(VK_TAB, {VK_CONTROL});
    EXPECT_TRUE(
        WaitUntil([&] { return IsWindowVisible(user::Control(window, ID_TextLines)) != 0; }));
    AddLine(window, "One moment, please...");
    user::TakeShot("story_adjusting", window);
    EXPECT_TRUE(user::Click(user::Control(window, IDOK)));
    EXPECT_TRUE(user::WaitUntilGone(window));
    EXPECT_EQ(LabelOf(editor_, ID_ImageInfo), "320 x  400 x  256");
    DragIntoSlot(1);
    TypeName("Lettered");
    ChooseAction(kCreate);

    TextLine line;
    line.text = "One moment, please...";
    line.font.face = FaceFor(line.font.face);
    line.y = kLogoHeight * 5 / 6;
    compose::Composition composition;
    composition.framing.kind = compose::FramingKind::Fill;
    const std::string photograph = kPictures + "Lighthouse.jpg";
    composition.framing = compose::MovedBy(*compose::SizeOfPicture(photograph), composition,
                                           30.0 * kLogoWidth / static_cast<double>(shown.right),
                                           -40.0 * kLogoHeight / static_cast<double>(shown.bottom));
    composition.text = MasksOf({DrawnLine(line)});
    const std::string expected = "C:\\test\\expected.sys";
    EXPECT_EQ(compose::MakeScreen(photograph, expected, composition), ConversionResult::Written);
    EXPECT_TRUE(
        WaitUntil([&] { return Contents(logos + "Lettered\\LOGOW.SYS") == Contents(expected); }));
    EXPECT_TRUE(user::Click(Part(ID_CloseButton)));
    EXPECT_TRUE(user::WaitUntilGone(editor_));
    Close();
}

}  // namespace
}  // namespace vistrel::test
