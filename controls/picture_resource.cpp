#include "controls/picture_resource.h"

#include <windows.h>

#include "platform/instance.h"

namespace vistrel {

void ShowPictureResource(const char* name, PictureBox& box) {
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageA(ProgramInstance(), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (!bitmap) return;
    BITMAP facts{};
    GetObjectA(bitmap, sizeof facts, &facts);
    box.SetScaleSize({static_cast<int>(facts.bmWidth), static_cast<int>(facts.bmHeight)});
    const HDC canvas = box.Canvas();
    const HDC memory = CreateCompatibleDC(canvas);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    BitBlt(canvas, 0, 0, facts.bmWidth, facts.bmHeight, memory, 0, 0, SRCCOPY);
    SelectObject(memory, former);
    DeleteDC(memory);
    DeleteObject(bitmap);
    box.Keep();
}

}  // namespace vistrel
