#include "adjust/frm_many_sets.h"

#include <utility>

#include "core/generali.h"
#include "help/context_numbers.h"
#include "resources/ids.h"

namespace vistrel::adjust {
namespace {

constexpr unsigned kBetweenPictures = 10;

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string NameOf(std::string path) { return core::GetFileName(path); }

}  // namespace

FrmManySets::FrmManySets(std::string library, std::vector<std::string> pictures)
    : Window("FrmManySets", IDD_FrmManySets),
      library_(std::move(library)),
      pictures_(std::move(pictures)),
      step_(kBetweenPictures) {
    namespace number = help_number;
    const controls::Part parts[] = {
        {LblMany, ID_LblMany},
        {FrameFraming, ID_ManyFrames},
        {OptFraming[0], ID_OptManyFraming, number::ManyFraming,
         "Shapes stay; what does not fit is cut off"},
        {OptFraming[1], ID_OptManyFraming + 1, number::ManyFraming,
         "All of each picture, with a black border"},
        {FrameKind, ID_ManyFrames + 1},
        {OptKind[0], ID_OptManyKind, number::ManyKind, "Each set has the name of its picture"},
        {OptKind[1], ID_OptManyKind + 1, number::ManyKind,
         "Each set has the name of its first picture"},
        {LblDone, ID_LblManyDone},
        {Progress, ID_ManyProgress, number::ManyProgress},
        {LblLeftOut, ID_LblLeftOut},
        {LeftOut, ID_LeftOut, number::ManyLeftOut, "Pictures that are in no set, and why"},
        {BtnMakeSets, ID_BtnMakeSets, number::ManyMake, "Makes the sets"},
        {BtnClose, ID_BtnCancel, number::ManyClose,
         "Stops after the picture that is being worked on, or closes"},
    };
    AddParts(parts);
    Add(step_);
    step_.Tick = [this] { Step(); };
    BtnMakeSets.Click = [this] { BtnMakeSets_Click(); };
    BtnClose.Click = [this] { BtnClose_Click(); };
}

std::vector<std::string> FrmManySets::Made() const {
    return sets_ ? sets_->Made() : std::vector<std::string>();
}

void FrmManySets::Form_Load() {
    LblMany.SetText(Counted(pictures_.size(), "picture is", "pictures are") + " selected.");
    OptFraming[0].SetMark(true);
    OptKind[0].SetMark(true);
    Progress.SetSteps(static_cast<int>(pictures_.size()));
}

void FrmManySets::BtnMakeSets_Click() {
    sets_.emplace(library_, pictures_,
                  OptKind[0].Value() ? core::SetKind::StartupOnly : core::SetKind::Complete,
                  OptFraming[0].Value() ? compose::FramingKind::Fill : compose::FramingKind::Fit);
    // Before the button, which has the focus, cannot have it any more.
    BtnClose.Focus();
    controls::EnableControls(false, BtnMakeSets, OptFraming[0], OptFraming[1], OptKind[0],
                             OptKind[1]);
    LblDone.SetText(NameOf(pictures_.front()));
    step_.SetEnabled(true);
}

void FrmManySets::Step() {
    sets_->Next();
    Progress.SetValue(static_cast<int>(sets_->Done()));
    if (sets_->IsDone())
        Finish("Done: ");
    else
        LblDone.SetText(NameOf(pictures_[sets_->Done()]));
}

void FrmManySets::BtnClose_Click() {
    if (!IsRunning()) {
        Unload();
        return;
    }
    sets_->Stop();
    Finish("Stopped: ");
}

// What is made already stays, and is told to whoever opened the window.
bool FrmManySets::Form_Unload() {
    step_.SetEnabled(false);
    return true;
}

void FrmManySets::Finish(const std::string& how) {
    step_.SetEnabled(false);
    LblDone.SetText(how + Counted(sets_->Made().size(), "set was made.", "sets were made."));
    ShowLeftOut();
    BtnClose.SetText("Close");
    // There is nothing else to do, so Enter does it.
    GiveFocus(BtnClose);
}

void FrmManySets::ShowLeftOut() {
    for (const std::string& picture : sets_->NotRead())
        LeftOut.AddItem(NameOf(picture) + ": cannot be read");
    for (const std::string& picture : sets_->NotWritten())
        LeftOut.AddItem(NameOf(picture) + ": its set cannot be written");
}

}  // namespace vistrel::adjust
