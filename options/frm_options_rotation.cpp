// The preferences' page "Rotation": which sets take part in the changes at each start of Windows.
#include "core/library.h"
#include "core/rotation.h"
#include "help/context_numbers.h"
#include "options/frm_options.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::options {

void FrmOptions::AddRotation() {
    namespace number = help_number;
    const Row rows[] = {
        {LblRotation, ID_LblRotation},
        {RotationList, ID_RotationList, number::RotationList},
        {BtnAllSets, ID_BtnAllSets, number::BtnAllSets},
        {BtnNoSets, ID_BtnNoSets, number::BtnAllSets},
    };
    AddPage(kRotation, rows);
    BtnAllSets.Click = [this] { CheckAllSets(true); };
    BtnNoSets.Click = [this] { CheckAllSets(false); };
}

void FrmOptions::ShowRotation() {
    const platform::BusyPointer busy;
    const core::Settings& settings = host_.Preferences();
    const core::LeftOutSets leftOut(settings.leftOutOfRotation);
    RotationList.SuspendPainting();
    RotationList.Clear();
    for (const std::string& set : core::LogoSetNames(settings.logoPath))
        RotationList.AddItem(set, !leftOut.Holds(set));
    if (RotationList.Count() > 0) RotationList.GiveKeys(0);
    RotationList.ResumePainting();
    rotationIsShown_ = true;
}

void FrmOptions::CheckAllSets(bool checked) {
    RotationList.SuspendPainting();
    for (int i = 0; i < RotationList.Count(); ++i) RotationList.SetChecked(i, checked);
    RotationList.ResumePainting();
}

void FrmOptions::TakeRotation() {
    std::vector<std::string> leftOut;
    for (int i = 0; i < RotationList.Count(); ++i)
        if (!RotationList.Checked(i)) leftOut.push_back(RotationList.ItemText(i));
    host_.Preferences().leftOutOfRotation = core::LeftOutSets(leftOut).Text();
}

}  // namespace vistrel::options
