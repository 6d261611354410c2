// The document in the window: changed so that each change can be undone, and shown at once, with
// all its colours when the hand rests.
#include <utility>

#include "animate/frm_animate.h"

namespace vistrel::animate {

void FrmAnimate::Change(const void* hand, const Edit& edit) {
    Apply(hand, [&](Document& document) {
        edit(document);
        document.byHand.reset();
    });
}

void FrmAnimate::Apply(const void* hand, const Edit& edit) {
    // What another hand changes is no part of the line that is being drawn.
    if (hand != &MovingBox) EndDrag();
    if (hand == kNobody || hand != lastHand_) history_.Remember(document_);
    lastHand_ = hand;
    edit(document_);
    Changed();
}

void FrmAnimate::GoBack(bool undo) {
    if (undo ? !history_.CanUndo() : !history_.CanRedo()) return;
    EndDrag();
    if (undo)
        history_.Undo(document_);
    else
        history_.Redo(document_);
    lastHand_ = kNobody;
    picked_.reset();
    ShowDocument();
    ShowFinished();
}

void FrmAnimate::Changed() {
    ShowPossible();
    ShowQuick();
    restTimer_.SetEnabled(true);
}

void FrmAnimate::ShowQuick() { ShowScreen(live_.Quick(document_)); }

void FrmAnimate::ShowFinished() {
    restTimer_.SetEnabled(false);
    ShowScreen(live_.Finished(document_));
}

// Without memory what was shown before stays.
void FrmAnimate::ShowScreen(std::optional<screen::IndexedScreen> made) {
    if (!made) return;
    shown_ = std::move(*made);
    ShowMarked();
    if (CurrentPage() == kByHand) ShowBoard();
}

void FrmAnimate::ShowMarked() {
    if (!shown_.indices.empty()) view_.Show(shown_, MarksNow(), MovingBox);
}

screen::Layer* FrmAnimate::Selected() {
    auto& layers = document_.picture.layers;
    return document_.selected < layers.size() ? &layers[document_.selected] : nullptr;
}

const screen::Layer* FrmAnimate::Selected() const {
    return const_cast<FrmAnimate*>(this)->Selected();
}

std::optional<LayerKind> FrmAnimate::SelectedKind() const {
    const screen::Layer* layer = Selected();
    return layer ? std::optional(KindOf(layer->pattern)) : std::nullopt;
}

Marks FrmAnimate::MarksNow() const {
    Marks marks;
    const screen::Layer* layer = Selected();
    if (CurrentPage() != kMoves || !layer) return marks;
    marks.area = &layer->area;
    marks.line = line_;
    if (HasCross() && MovingBox.HasFocus()) marks.cross = cross_;
    return marks;
}

}  // namespace vistrel::animate
