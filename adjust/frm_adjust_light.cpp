// The page on light and colours.
#include <cmath>
#include <cstdio>

#include "adjust/frm_adjust.h"
#include "help/context_numbers.h"
#include "resources/ids.h"

namespace vistrel::adjust {
namespace {

constexpr int kGamma = 2;

// The slider of the gamma doubles it in so many steps.
constexpr int kStepsToDouble = 50;

int GammaOf(int steps) {
    return static_cast<int>(std::lround(100 * std::exp2(double(steps) / kStepsToDouble)));
}

int StepsOf(int gamma) {
    return static_cast<int>(std::lround(kStepsToDouble * std::log2(gamma / 100.0)));
}

std::string Signed(int number) { return (number > 0 ? "+" : "") + std::to_string(number); }

std::string Hundredths(int number) {
    char text[16];
    std::snprintf(text, sizeof text, "%d.%02d", number / 100, number % 100);
    return text;
}

}  // namespace

void FrmAdjust::AddLight() {
    namespace number = help_number;
    const char* tips[] = {"Makes the picture darker or lighter",
                          "Brings dark and light nearer to each other or farther apart",
                          "Makes the middle darker or lighter; black and white stay",
                          "From grey to strong colours"};
    for (int i = 0; i < 4; ++i) {
        const controls::Part slider[] = {
            {LblLight[i], ID_LblLight + i, number::LightBar[i]},
            {LblLightValue[i], ID_LblLightValue + i, number::LightBar[i]},
            {LightBar[i], ID_LightBar + i, number::LightBar[i], tips[i]},
        };
        AddPage(kLight, slider);
        LightBar[i].Change = [this] { LightBar_Change(); };
    }
    const controls::Part parts[] = {
        {ChkAuto, ID_ChkAuto, number::ChkAuto,
         "Makes the darkest part black and the lightest white"},
        {LblDither, ID_LblDither, number::DitherKind},
        {DitherKind, ID_DitherKind, number::DitherKind,
         "How colours that are missing are mixed from dots of others"},
        {BtnReset, ID_BtnReset, number::BtnReset, "Sets light and dithering back"},
    };
    AddPage(kLight, parts);
    ChkAuto.Click = [this] {
        composition_.light.autoLevels = ChkAuto.Value() != 0;
        Changed();
    };
    DitherKind.Click = [this] {
        composition_.dither = static_cast<reduce::Dither>(DitherKind.ListIndex());
        Changed();
    };
    BtnReset.Click = [this] { BtnReset_Click(); };
}

void FrmAdjust::ShowLight() {
    const compose::Light& light = composition_.light;
    const int values[] = {light.brightness, light.contrast, StepsOf(light.gamma), light.saturation};
    for (int i = 0; i < 4; ++i) {
        LightBar[i].SetRange(-100, 100, 1, 10, 0);
        LightBar[i].SetValue(values[i]);
    }
    ChkAuto.SetValue(light.autoLevels);
    DitherKind.SetListIndex(static_cast<int>(composition_.dither));
    ShowLightValues();
}

void FrmAdjust::ShowLightValues() {
    for (int i = 0; i < 4; ++i)
        LblLightValue[i].SetText(i == kGamma ? Hundredths(composition_.light.gamma)
                                             : Signed(LightBar[i].Value()));
}

void FrmAdjust::LightBar_Change() {
    compose::Light light = composition_.light;
    light.brightness = LightBar[0].Value();
    light.contrast = LightBar[1].Value();
    light.gamma = GammaOf(LightBar[kGamma].Value());
    light.saturation = LightBar[3].Value();
    // The end of a drag is told once more.
    if (light == composition_.light) return;
    composition_.light = light;
    ShowLightValues();
    Changed();
}

void FrmAdjust::BtnReset_Click() {
    composition_.light = {};
    composition_.dither = reduce::Dither::On;
    ShowLight();
    Changed();
}

}  // namespace vistrel::adjust
