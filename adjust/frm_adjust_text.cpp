// The page on text.
#include <algorithm>

#include "adjust/color_number.h"
#include "adjust/frm_adjust.h"
#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "pictures/preview/draw_letters.h"
#include "platform/look_dialogs.h"
#include "resources/ids.h"

namespace vistrel::adjust {
namespace {

/// What one may want to say on a wait screen and, behind the gap, on a shutdown screen.
constexpr const char* kReadyLines[] = {"One moment, please...",
                                       "Closing down...",
                                       "Nearly done...",
                                       "Putting things away...",
                                       nullptr,
                                       "You may switch me off.",
                                       "All done. Switch off now.",
                                       "See you tomorrow!",
                                       "Good night!"};

constexpr const char* kNewLine = "New line";

/// Where the first line comes to stand: in the lower third, as a caption does.
constexpr int kFirstLine = pictures::kLogoHeight * 5 / 6;

}  // namespace

void FrmAdjust::AddText() {
    namespace number = help_number;
    const controls::Part parts[] = {
        {LblLines, ID_LblLines, number::TextLines},
        {TextLines, ID_TextLines, number::TextLines, "The lines of text on the screen"},
        {BtnAddLine, ID_BtnAddLine, number::BtnsOfLines, "Adds a line of your own"},
        {BtnEditLine, ID_BtnEditLine, number::BtnsOfLines, "Changes the words of the line"},
        {BtnDeleteLine, ID_BtnDeleteLine, number::BtnsOfLines, "Takes the line away"},
        {BtnReadyMade, ID_BtnReadyMade, number::BtnReadyMade,
         "Adds a line for a wait or a shutdown screen"},
        {BtnFont, ID_BtnFont, number::BtnFont, "Chooses the letters of the line"},
        {BtnTextColor, ID_BtnTextColor, number::BtnTextColor, "Chooses the colour of the line"},
        {TextSwatch, ID_TextSwatch, number::BtnTextColor},
        {LblEdge, ID_LblEdge, number::EdgeKind},
        {EdgeKind, ID_EdgeKind, number::EdgeKind,
         "What makes the letters stand out from the picture"},
        {LblAlign, ID_LblAlign, number::AlignKind},
        {AlignKind, ID_AlignKind, number::AlignKind, "Puts the line to a side or into the middle"},
    };
    AddPage(kText, parts);
    ConnectText();
    int id = ID_ReadyLine;
    for (const char* line : kReadyLines) {
        if (line)
            controls::AddMenuItem(readyMade_, id, line);
        else
            controls::AddMenuSeparator(readyMade_);
        ++id;
    }
}

void FrmAdjust::ConnectText() {
    TextLines.SelectionChanged = [this] {
        ShowLine();
        ShowPossible();
    };
    // The screen shows each letter as it is typed; what is taken in the end is there already.
    TextLines.LabelChange = [this](const std::string& text) { TextLines_LabelChange(text); };
    TextLines.AfterLabelEdit = [](const std::string&) { return true; };
    TextLines.DblClick = [this] { TextLines.StartLabelEdit(); };
    TextLines.KeyUp = [this](int key) {
        if (TextLines.EditingLabel() || !SelectedLine()) return;
        if (key == controls::kKeyF2) TextLines.StartLabelEdit();
        if (key == controls::kKeyDelete) BtnDeleteLine_Click();
    };
    BtnAddLine.Click = [this] { BtnAddLine_Click(); };
    BtnEditLine.Click = [this] { TextLines.StartLabelEdit(); };
    BtnDeleteLine.Click = [this] { BtnDeleteLine_Click(); };
    BtnReadyMade.Click = [this] { BtnReadyMade_Click(); };
    BtnFont.Click = [this] { BtnFont_Click(); };
    BtnTextColor.Click = [this] { BtnTextColor_Click(); };
    EdgeKind.Click = [this] {
        ChangeLine(
            [this](TextLine& line) { line.edge = static_cast<LetterEdge>(EdgeKind.ListIndex()); });
    };
    AlignKind.Click = [this] {
        if (!SelectedLine()) return;
        lines_[*SelectedLine()].Align(static_cast<Alignment>(AlignKind.ListIndex()));
        LinesChanged();
    };
}

// While an item is being added the list may select it before its line is there.
std::optional<std::size_t> FrmAdjust::SelectedLine() const {
    const int selected = TextLines.SelectedItem();
    if (selected < 0 || static_cast<std::size_t>(selected) >= lines_.size()) return std::nullopt;
    return static_cast<std::size_t>(selected);
}

void FrmAdjust::SelectLine(std::size_t index) {
    TextLines.Select(static_cast<int>(index));
    TextLines.EnsureVisible(static_cast<int>(index));
    ShowLine();
    ShowPossible();
}

void FrmAdjust::ShowLine() {
    const auto selected = SelectedLine();
    EdgeKind.SetListIndex(selected ? static_cast<int>(lines_[*selected].line().edge) : -1);
    AlignKind.SetListIndex(selected ? static_cast<int>(lines_[*selected].line().alignment) : -1);
    TextSwatch.SetForeColor(0);
    TextSwatch.SetBackColor(NumberOf(selected ? lines_[*selected].line().color : compose::Color{}));
}

// A new line looks like the last one and stands below it, as long as there is room.
void FrmAdjust::AddLine(const std::string& text) {
    TextLine line;
    line.font.face = preview::FaceFor(line.font.face);
    line.y = kFirstLine;
    if (!lines_.empty()) {
        const DrawnLine& last = lines_.back();
        line = last.line();
        line.y = std::min(line.y + last.mask().letters.height, pictures::kLogoHeight - kMarginDown);
    }
    line.text = text;
    lines_.emplace_back(line);
    TextLines.AddItem(text, "");
    SelectLine(lines_.size() - 1);
    LinesChanged();
}

void FrmAdjust::BtnAddLine_Click() {
    AddLine(kNewLine);
    TextLines.StartLabelEdit();
}

void FrmAdjust::BtnDeleteLine_Click() {
    const auto selected = SelectedLine();
    if (!selected) return;
    const std::size_t line = *selected;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(line));
    TextLines.RemoveItem(static_cast<int>(line));
    if (!lines_.empty()) SelectLine(line < lines_.size() ? line : lines_.size() - 1);
    LinesChanged();
    // The button may be grey now, and nobody would have the keys.
    TextLines.Focus();
}

void FrmAdjust::BtnReadyMade_Click() { PopUpMenuAt(BtnReadyMade, readyMade_); }

void FrmAdjust::MenuCommand(int id) {
    const int chosen = id - ID_ReadyLine;
    if (chosen >= 0 && chosen < static_cast<int>(std::size(kReadyLines)))
        AddLine(kReadyLines[chosen]);
}

void FrmAdjust::TextLines_LabelChange(const std::string& text) {
    const auto edited = static_cast<std::size_t>(TextLines.EditedItem());
    if (edited >= lines_.size() || lines_[edited].line().text == text) return;
    TextLine line = lines_[edited].line();
    line.text = text;
    lines_[edited] = DrawnLine(line);
    LinesChanged();
}

void FrmAdjust::ChangeLine(const std::function<void(TextLine&)>& change) {
    const auto selected = SelectedLine();
    if (!selected) return;
    TextLine line = lines_[*selected].line();
    change(line);
    lines_[*selected] = DrawnLine(line);
    ShowLine();
    LinesChanged();
}

void FrmAdjust::BtnFont_Click() {
    platform::TextFont now = lines_[*SelectedLine()].line().font;
    // The dialog has no row for a font that is gone.
    now.face = preview::FaceFor(now.face);
    const auto chosen = platform::PickFont(handle(), now);
    if (chosen) ChangeLine([&](TextLine& line) { line.font = *chosen; });
}

void FrmAdjust::BtnTextColor_Click() {
    const auto chosen =
        platform::PickColor(handle(), NumberOf(lines_[*SelectedLine()].line().color));
    if (chosen) ChangeLine([&](TextLine& line) { line.color = ColorOf(*chosen); });
}

void FrmAdjust::LinesChanged() {
    composition_.text = MasksOf(lines_);
    Changed();
}

// Of lines that lie over each other the uppermost one, which was painted last.
void FrmAdjust::GrabLine(controls::Point screen) {
    for (std::size_t i = lines_.size(); i-- > 0;) {
        if (!lines_[i].Covers(screen.x, screen.y)) continue;
        SelectLine(i);
        grabbed_ = {lines_[i].line().x - screen.x, lines_[i].line().y - screen.y};
        draggingLine_ = true;
        return;
    }
}

}  // namespace vistrel::adjust
