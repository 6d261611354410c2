// The system's handles as plain types, so that headers need no windows.h: its macros rename
// functions of ours.
#pragma once

struct HWND__;
struct HDC__;
struct HICON__;
struct HMENU__;
struct HFONT__;
struct HBITMAP__;
struct HBRUSH__;
struct HINSTANCE__;
struct _IMAGELIST;

namespace vistrel::platform {

using WindowHandle = HWND__*;
using DeviceContext = HDC__*;
using IconHandle = HICON__*;
using MenuHandle = HMENU__*;
using FontHandle = HFONT__*;
using BitmapHandle = HBITMAP__*;
using BrushHandle = HBRUSH__*;
using InstanceHandle = HINSTANCE__*;
using ImageListHandle = _IMAGELIST*;

}  // namespace vistrel::platform
