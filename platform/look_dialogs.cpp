#include "platform/look_dialogs.h"

#include <windows.h>
// commdlg.h needs windows.h first.
#include <commdlg.h>

#include "platform/fault.h"
#include "platform/win32.h"

namespace vistrel::platform {
namespace {

/// Sizes that may be chosen, in points.
constexpr int kSmallest = 6;
constexpr int kLargest = 288;
constexpr int kPointsPerInch = 72;

int DotsPerInch() { return GetDeviceCaps(ScreenContext(), LOGPIXELSY); }

}  // namespace

std::optional<long> PickColor(WindowHandle owner, long start) {
    if (fault::ShouldFail()) return std::nullopt;
    static COLORREF mixed[16] = {};
    CHOOSECOLORA request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.rgbResult = static_cast<COLORREF>(start);
    request.lpCustColors = mixed;
    request.Flags = CC_RGBINIT | CC_ANYCOLOR;
    if (!ChooseColorA(&request)) return std::nullopt;
    return static_cast<long>(request.rgbResult);
}

std::optional<TextFont> PickFont(WindowHandle owner, const TextFont& start) {
    if (fault::ShouldFail()) return std::nullopt;
    LOGFONTA font{};
    font.lfHeight = -MulDiv(start.tenthsOfPoint, DotsPerInch(), 10 * kPointsPerInch);
    font.lfWeight = start.weight;
    font.lfItalic = start.italic;
    font.lfCharSet = static_cast<BYTE>(start.charSet);
    lstrcpynA(font.lfFaceName, start.face.c_str(), LF_FACESIZE);
    CHOOSEFONTA request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpLogFont = &font;
    // Fonts made of dots would become steps when they are drawn large.
    request.Flags = CF_SCREENFONTS | CF_TTONLY | CF_INITTOLOGFONTSTRUCT | CF_FORCEFONTEXIST |
                    CF_NOVERTFONTS | CF_LIMITSIZE;
    request.nSizeMin = kSmallest;
    request.nSizeMax = kLargest;
    if (!ChooseFontA(&request)) return std::nullopt;
    TextFont chosen;
    chosen.face = font.lfFaceName;
    chosen.tenthsOfPoint = request.iPointSize;
    chosen.weight = static_cast<int>(font.lfWeight);
    chosen.italic = font.lfItalic != 0;
    chosen.charSet = font.lfCharSet;
    return chosen;
}

}  // namespace vistrel::platform
