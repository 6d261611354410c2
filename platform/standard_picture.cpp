#include "platform/standard_picture.h"

#include <windows.h>
// ocidl.h and olectl.h need windows.h first.
#include <ocidl.h>
#include <olectl.h>

#include <new>

#include "platform/drawing_objects.h"
#include "platform/fault.h"
#include "platform/win32.h"

namespace vistrel::platform {
namespace {

using LoadPicture = HRESULT(WINAPI*)(LPSTREAM, LONG, BOOL, REFIID, LPVOID*);

/// No system picture is larger; GDI's coordinates are 16-bit numbers on Windows 95 and 98.
constexpr LONG kLargestSide = 32767;

/// Windows 95 has the loader in a library of its own, later systems have moved it.
LoadPicture FindLoader() {
    for (const char* library : {"oleaut32.dll", "olepro32.dll"}) {
        const HMODULE module = LoadLibraryA(library);
        if (!module) continue;
        if (const FARPROC found = GetProcAddress(module, "OleLoadPicture"))
            return reinterpret_cast<LoadPicture>(reinterpret_cast<void*>(found));
        FreeLibrary(module);
    }
    return nullptr;
}

/// The file as a stream over a memory block that the stream frees.
IStream* StreamOf(const std::string& path) {
    const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    const DWORD size = GetFileSize(file, nullptr);
    const HGLOBAL block = size != INVALID_FILE_SIZE ? GlobalAlloc(GMEM_MOVEABLE, size) : nullptr;
    DWORD read = 0;
    if (block) {
        if (!ReadFile(file, GlobalLock(block), size, &read, nullptr)) read = 0;
        GlobalUnlock(block);
    }
    CloseHandle(file);
    IStream* stream = nullptr;
    if (block && (read != size || CreateStreamOnHGlobal(block, TRUE, &stream) != S_OK))
        GlobalFree(block);
    return stream;
}

/// Takes the pixels of a 24-bit bitmap whose rows come from the top. False when there is no memory.
bool TakePixels(const void* bits, LONG across, LONG down, StandardPicture& picture) try {
    picture.pixels.resize(static_cast<std::size_t>(across) * down * 3);
    picture.width = static_cast<int>(across);
    picture.height = static_cast<int>(down);
    const std::size_t stride = (static_cast<std::size_t>(across) * 3 + 3) & ~std::size_t{3};
    std::uint8_t* out = picture.pixels.data();
    for (LONG y = 0; y < down; ++y) {
        const std::uint8_t* row = static_cast<const std::uint8_t*>(bits) + y * stride;
        for (LONG x = 0; x < across; ++x, row += 3, out += 3) {
            out[0] = row[2];
            out[1] = row[1];
            out[2] = row[0];
        }
    }
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

/// Draws the picture into a 24-bit bitmap of its own size in pixels and takes its pixels.
bool Render(IPicture* source, StandardPicture& picture) {
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    if (source->get_Width(&width) != S_OK || source->get_Height(&height) != S_OK) return false;
    const ScreenContext screen;
    // A himetric unit is a hundredth of a millimetre, 2,540 of them an inch.
    const LONG across = MulDiv(width, GetDeviceCaps(screen, LOGPIXELSX), 2540);
    const LONG down = MulDiv(height, GetDeviceCaps(screen, LOGPIXELSY), 2540);
    BITMAPINFO info{};
    info.bmiHeader = HeaderFromTop(across, down, 24);
    void* bits = nullptr;
    HBITMAP bitmap = nullptr;
    const HDC memory = NewMemoryContext(screen);
    if (across > 0 && down > 0 && across <= kLargestSide && down <= kLargestSide)
        bitmap = NewBitmapInMemory(memory, &info, &bits);
    bool drawn = false;
    if (bitmap) {
        const HGDIOBJ former = SelectObject(memory, bitmap);
        // A picture's own coordinates have their origin at the bottom.
        drawn =
            source->Render(memory, 0, 0, across, down, 0, height, width, -height, nullptr) == S_OK;
        GdiFlush();
        drawn = drawn && TakePixels(bits, across, down, picture);
        SelectObject(memory, former);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    return drawn;
}

}  // namespace

bool LoadStandardPicture(const std::string& path, StandardPicture& picture) {
    static const LoadPicture load = FindLoader();
    if (!load || fault::ShouldFail()) return false;
    IStream* stream = StreamOf(path);
    if (!stream) return false;
    IPicture* source = nullptr;
    // Size 0: all of the stream.
    const HRESULT loaded = load(stream, 0, FALSE, IID_IPicture, reinterpret_cast<void**>(&source));
    stream->Release();
    if (loaded != S_OK || !source) return false;
    const bool rendered = Render(source, picture);
    source->Release();
    return rendered;
}

}  // namespace vistrel::platform
