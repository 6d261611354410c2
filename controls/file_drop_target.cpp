#include "controls/file_drop_target.h"

#include <windows.h>
// ole2.h and shellapi.h need windows.h first.
#include <ole2.h>
#include <shellapi.h>

#include <utility>

#include "controls/drag_out.h"

namespace vistrel::controls {
namespace {

FORMATETC FileListFormat() { return {CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}; }

bool OffersFileList(IDataObject* data) {
    FORMATETC format = FileListFormat();
    return data->QueryGetData(&format) == S_OK;
}

std::vector<std::string> FileList(IDataObject* data) {
    std::vector<std::string> paths;
    FORMATETC format = FileListFormat();
    STGMEDIUM medium{};
    if (data->GetData(&format, &medium) != S_OK) return paths;
    const auto drop = static_cast<HDROP>(medium.hGlobal);
    const UINT count = DragQueryFileA(drop, 0xffffffff, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::string path(DragQueryFileA(drop, i, nullptr, 0) + 1, '\0');
        path.resize(DragQueryFileA(drop, i, path.data(), static_cast<UINT>(path.size())));
        paths.push_back(path);
    }
    ReleaseStgMedium(&medium);
    return paths;
}

}  // namespace

class FileDropTarget::Receiver final : public IDropTarget {
 public:
    explicit Receiver(std::function<void(const std::vector<std::string>&)> dropped)
        : dropped_(std::move(dropped)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDropTarget)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDropTarget*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        // What lies in the program's own list would come back to where it is.
        accepted_ = !IsDraggingOut() && OffersFileList(data);
        return DragOver(0, {}, effect);
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
        *effect = accepted_ ? *effect & DROPEFFECT_COPY : DROPEFFECT_NONE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        *effect &= DROPEFFECT_COPY;
        // No exception may cross the system's code.
        try {
            if (accepted_) dropped_(FileList(data));
        } catch (...) {
            return E_UNEXPECTED;
        }
        return S_OK;
    }

 private:
    std::function<void(const std::vector<std::string>&)> dropped_;
    ULONG references_ = 1;
    bool accepted_ = false;
};

FileDropTarget::FileDropTarget(platform::WindowHandle window,
                               std::function<void(const std::vector<std::string>&)> dropped)
    : window_(window),
      hasOle_(SUCCEEDED(OleInitialize(nullptr))),
      receiver_(new Receiver(std::move(dropped))) {
    RegisterDragDrop(window_, receiver_);
}

FileDropTarget::~FileDropTarget() {
    RevokeDragDrop(window_);
    receiver_->Release();
    if (hasOle_) OleUninitialize();
}

}  // namespace vistrel::controls
