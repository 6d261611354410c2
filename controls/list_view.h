// A list of items with small icons, as a list, as a report of one column, with columns of details
// or as pictures with names under them, whose labels can be edited in place. Items are numbered
// from 0.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/control.h"

namespace vistrel::controls {

enum class ListViewMode { Pictures = 0, List = 2, Report = 3, Details = 4 };

class FileDropTarget;

/// A column that only the view with details has.
struct DetailColumn {
    std::string heading;
    std::string longest;  ///< a text for which it has room
    bool isNumber = false;
};

class ListView : public Control {
 public:
    ListView();
    ~ListView() override;

    /// Takes the small icons from a bitmap resource, `keys` naming them from left to right. Pixels
    /// of `transparent` (blue-green-red) show the background.
    void LoadIcons(int bitmapResource, long transparent, const std::vector<std::string>& keys);
    void AddColumn(const std::string& heading, int width);
    /// Makes the column as wide as the list leaves beside a vertical scroll bar.
    void FitColumn();
    /// From now on the column of a report takes the whole width, however it changes.
    void FillWithColumn() { columnFills_ = true; }
    /// What the view with details shows behind the items' own column, which has room there for
    /// `longestName`. Columns whose width the user changes keep it.
    void SetDetailColumns(const std::string& longestName, std::vector<DetailColumn> columns);

    int Count() const;
    /// Adds an item at the end; its number.
    int AddItem(const std::string& text, const std::string& iconKey);
    void RemoveItem(int index);
    void Clear();
    std::string ItemText(int index) const;
    void SetItemText(int index, const std::string& text);
    /// Key of the item's icon.
    std::string ItemIcon(int index) const;
    void SetItemIcon(int index, const std::string& iconKey);
    /// Number of the item with exactly this text; -1 when there is none.
    int FindItem(const std::string& text) const;
    /// The same whatever the case; an item with exactly this text comes first.
    int FindItemOfAnyCase(const std::string& text) const;

    /// Number of the selected item; -1 when none is. Of several that are selected, where the
    /// template allows it, the one that the keys act on, or else the first.
    int SelectedItem() const;
    std::vector<int> SelectedItems() const;
    int SelectedCount() const;
    /// Selects one item, or none with -1. ItemClick does not run.
    void Select(int index);
    /// Selects one item more, or none with -1. ItemClick does not run.
    void SelectToo(int index);
    /// Selects these items and no others; the keys go on where they were. However many change,
    /// SelectionChanged runs once. ItemClick does not run.
    void SelectJust(const std::vector<int>& items);
    /// Makes an item the one at which the keys go on, which selects nothing; none with -1.
    void GiveKeys(int index);
    void EnsureVisible(int index);
    /// The first item that is seen, and scrolling so that an item is.
    int TopItem() const;
    void ScrollTo(int top);
    /// The item at a point of the control; -1 when there is none.
    int HitTest(Point at) const;

    ListViewMode Mode() const;
    void SetMode(ListViewMode mode);

    /// The size of the pictures of the view of that name.
    void SetPictureSize(Size size);
    Size PictureSize() const { return pictureSize_; }
    /// How many pictures cover as much as the whole list.
    int PicturesInView() const;
    /// Whether any of the item's picture is in sight.
    bool IsInView(int index) const;
    /// Paints an item now, not when messages have been handled.
    void RepaintItem(int index);

    /// Between these nothing is painted; the end paints all once.
    void SuspendPainting();
    void ResumePainting();

    void StartLabelEdit();
    bool EditingLabel() const;
    /// Number of the item whose label is being edited, which need not be the selected one any more;
    /// -1 when none is. It still stands while AfterLabelEdit runs.
    int EditedItem() const { return editedItem_; }
    void EndEdit() override;

    /// The user selected an item, by mouse or keyboard, or clicked the selected one.
    std::function<void(int index)> ItemClick;
    /// The selection is another now, or none, whoever made it so.
    std::function<void()> SelectionChanged;
    std::function<void()> DblClick;
    /// The user begins to drag the selected item with the left button, which is still down.
    std::function<void()> BeginDrag;
    /// Editing of an item's label begins; false forbids it.
    std::function<bool()> BeforeLabelEdit;
    /// Editing ended with a new text, which is neither empty nor the old one; false leaves the
    /// label as it is.
    std::function<bool(const std::string& newText)> AfterLabelEdit;
    /// What stands in an item's label while it is being edited, at each change; when editing ends
    /// without a new text, once more what stood there before.
    std::function<void(const std::string& text)> LabelChange;
    /// The heading of a column was clicked, from 0.
    std::function<void(int column)> HeadingClick;
    /// The text of a detail of an item that is seen; `column` counts from 0.
    std::function<std::string(int index, int column)> Detail;
    /// Paints an item's picture at a point; false when there is none to paint.
    std::function<bool(platform::DeviceContext target, int index, Point at)> PaintPicture;
    /// The keys of the icons that an item's picture bears.
    std::function<std::vector<std::string>(int index)> PictureMarks;
    /// The user asks for larger pictures (1) or smaller ones (-1): by the wheel or the keys + and
    /// -, with Ctrl.
    std::function<void(int steps)> Zoom;
    /// Files and folders were dropped on the list: their full paths.
    std::function<void(const std::vector<std::string>& paths)> OLEDragDrop;

    /// From now on files and folders can be dropped on the list. That loads OLE: a while on a slow
    /// machine.
    void AcceptDrops();

    std::intptr_t OnNotify(void* header) override;
    /// Below the selected item's text, where that is in sight.
    Point MenuPoint() const override;

 protected:
    bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                   std::intptr_t& result) override;

 private:
    void SetColumnWidth(int width);
    int RoomFor(const std::string& text) const;
    void AddDetailColumns();
    void RemoveDetailColumns();
    void AskForDetails(int index);
    void TellDetail(void* info);
    void FitScrollBars();
    void MakeRoomForPictures();
    int TopPicture() const;
    bool IsZoom(unsigned message, std::uintptr_t wParam);
    std::intptr_t OnCustomDraw(const void* draw);
    void PaintItem(platform::DeviceContext target, int index);
    void PaintBlank(platform::DeviceContext target, int index, const Rect& place);
    void PaintMarks(platform::DeviceContext target, int index, const Rect& place);
    platform::ImageListHandle Icons() const;
    /// Number of the first item behind `after` with this text, whatever the case; -1 for none.
    int NextItem(const std::string& text, int after) const;
    int IconNumber(const std::string& key) const;
    bool IsSelected(int index) const;
    bool HasKeys(int index) const;
    void TellClick();
    bool OnEndLabelEdit(const char* text);
    void TellTyped(void* label);

    std::vector<std::string> iconKeys_;
    bool columnFills_ = false;
    std::string longestName_;
    std::vector<DetailColumn> details_;
    std::vector<int> detailWidths_;  ///< as the user has left them; the items' own comes first
    bool detailsShown_ = false;
    Size pictureSize_;
    bool selectingByCode_ = false;
    bool selectingMany_ = false;
    Point pressedAt_;
    bool clickTold_ = false;  ///< ItemClick has run for the press that goes on
    int editedItem_ = -1;
    bool endingEdit_ = false;
    std::unique_ptr<FileDropTarget> dropTarget_;
};

}  // namespace vistrel::controls
