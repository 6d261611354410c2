#include "controls/owned_handle.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

namespace vistrel::controls {

void FreeHandle(platform::MenuHandle menu) { DestroyMenu(menu); }
void FreeHandle(platform::ImageListHandle images) { ImageList_Destroy(images); }
void FreeHandle(platform::FontHandle font) { DeleteObject(font); }
void FreeHandle(platform::BrushHandle brush) { DeleteObject(brush); }

}  // namespace vistrel::controls
