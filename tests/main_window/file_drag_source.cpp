#include "tests/main_window/file_drag_source.h"

#include <ole2.h>
#include <shlobj.h>

#include <cstring>

#include "tests/main_window/small_window.h"

namespace vistrel::test {
namespace {

/// Says on that the drag goes on while the left button is down.
class Source final : public IDropSource {
 public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropSource) ? this : nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }  // lives on the stack
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
        if (escape) return DRAGDROP_S_CANCEL;
        return keys & MK_LBUTTON ? S_OK : DRAGDROP_S_DROP;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

/// Offers one format only.
class Data final : public IDataObject {
 public:
    Data(CLIPFORMAT format, std::string bytes) : format_(format), bytes_(std::move(bytes)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDataObject) ? this : nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }  // lives on the stack
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        return format->cfFormat == format_ && format->tymed & TYMED_HGLOBAL ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
        medium->tymed = TYMED_HGLOBAL;
        medium->pUnkForRelease = nullptr;
        medium->hGlobal = GlobalAlloc(GMEM_MOVEABLE, bytes_.size());
        std::memcpy(GlobalLock(medium->hGlobal), bytes_.data(), bytes_.size());
        GlobalUnlock(medium->hGlobal);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }

 private:
    CLIPFORMAT format_;
    std::string bytes_;
};

std::string FileList(const std::vector<std::string>& paths) {
    DROPFILES header{};
    header.pFiles = sizeof header;
    std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
    for (const std::string& path : paths) bytes += path + '\0';
    return bytes + '\0';
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN) {
        reinterpret_cast<FileDragSource*>(GetWindowLongPtrA(window, GWLP_USERDATA))->Begin();
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

FileDragSource::FileDragSource(POINT at, std::vector<std::string> paths, bool asFiles)
    : paths_(std::move(paths)), asFiles_(asFiles) {
    window_ = MakeSmallWindow("FileDragSource", Procedure, at);
    SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

FileDragSource::~FileDragSource() { DestroyWindow(window_); }

void FileDragSource::Begin() {
    Source source;
    Data data(asFiles_ ? CF_HDROP : CF_TEXT,
              asFiles_ ? FileList(paths_) : std::string("text\0", 5));
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT ended = DoDragDrop(&data, &source, DROPEFFECT_COPY, &effect);
    effect_ = ended == DRAGDROP_S_DROP ? effect : DWORD{DROPEFFECT_NONE};
}

}  // namespace vistrel::test
