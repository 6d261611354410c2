#include "about/frm_about_reg.h"

#include <string>

#include "about/about.h"
#include "about/contacts.h"
#include "controls/drawing.h"
#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "pictures/preview/draw_resource.h"
#include "platform/message_box.h"
#include "resources/ids.h"
#include "resources/version.h"

namespace vistrel::about {
namespace {

constexpr const char* kVersion = "Version: " VERSION_ABOUT;
constexpr const char* kLegalWarning = "Copying this program under another name is against the law.";

/// The separator under the title, in twips; the other one is as long.
constexpr controls::Point kRuleFrom{720, 1260};
constexpr controls::Point kRuleTo{4560, 1270};
constexpr int kTwipsPerInch = 1440;

int PixelsOf(int twips) { return twips * controls::PixelsPerInch() / kTwipsPerInch; }

/// The web pages stand between the mail addresses.
bool IsWebPage(int index) { return index == 1 || index == 3; }

}  // namespace

FrmAboutReg::FrmAboutReg() : Window("FrmAboutReg", IDD_FrmAboutReg) {
    const controls::Part parts[] = {
        {Image1, ID_Image1},
        {LblTitProgram, ID_LblTitProgram},
        {LblVersion, ID_LblVersion},
        {LblComments, ID_LblComments},
        {Label4, ID_Label4},
        {Label5, ID_Label5},
        {LblInternet[0], ID_LblInternet},
        {LblInternet[1], ID_LblInternet + 1},
        {LblInternet[2], ID_LblInternet + 2},
        {LblInternet[3], ID_LblInternet + 3},
        {Line1, ID_Line1},
        {BtnOK, ID_BtnOK},
    };
    AddParts(parts);
    for (int i = 0; i < 4; ++i) LblInternet[i].Click = [this, i] { LblInternet_Click(i); };
    BtnOK.Click = [this] { BtnOK_Click(); };
}

void FrmAboutReg::Form_Load() {
    SetHelpTopic(help_number::AboutBox);
    preview::ShowPictureResource("logoicon", Image1);
    LblTitProgram.SetFont({.bold = true, .points = 18, .face = "Arial"});
    LblTitProgram.SetText(platform::kProgramTitle);
    LblVersion.SetText(kVersion);
    LblComments.SetText(kLegalWarning);
    const controls::Rect line = Line1.Bounds();
    Line1.MoveTo({PixelsOf(kRuleFrom.x), line.top, PixelsOf(kRuleTo.x - kRuleFrom.x), line.height});
    const char* addresses[] = {kSupportAddress, kHomePage, kSuggestionsAddress, kLogoPage};
    for (int i = 0; i < 4; ++i) {
        LblInternet[i].SetText(addresses[i]);
        LblInternet[i].SetForeColor(controls::kBlue);
        LblInternet[i].SetFont({.underline = true});
        LblInternet[i].SetHandPointer("mano");
        // Only the text itself is the link.
        LblInternet[i].FitToText();
    }
}

void FrmAboutReg::Form_Paint(platform::DeviceContext target) {
    controls::DrawSeparator(target, kRuleFrom, kRuleTo);
}

void FrmAboutReg::LblInternet_Click(int index) {
    const std::string text = LblInternet[index].Text();
    OpenLink(IsWebPage(index) ? text : "mailto:" + text + "?subject=Vistrel 98", handle());
}

void FrmAboutReg::BtnOK_Click() { Unload(); }

void FrmAboutReg::MenuCommand(int id) {
    if (id == ID_BtnCancel) Unload();  // Esc
}

}  // namespace vistrel::about
