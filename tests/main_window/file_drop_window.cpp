#include "tests/main_window/file_drop_window.h"

#include <ole2.h>
#include <shellapi.h>

#include "tests/main_window/dropped_paths.h"
#include "tests/main_window/small_window.h"

namespace vistrel::test {

class FileDropWindow::Target final : public IDropTarget {
 public:
    explicit Target(FileDropWindow& owner) : owner_(owner) {}
    virtual ~Target() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropTarget) ? this : nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }  // lives as long as the window
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject*, DWORD, POINTL, DWORD* effect) override {
        owner_.allowed_ = *effect;
        *effect &= DROPEFFECT_COPY;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
        *effect &= DROPEFFECT_COPY;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        *effect &= DROPEFFECT_COPY;
        FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        STGMEDIUM medium{};
        if (data->GetData(&format, &medium) == S_OK) {
            owner_.paths_ = PathsOf(static_cast<HDROP>(medium.hGlobal));
            ReleaseStgMedium(&medium);
        }
        for (const std::string& path : owner_.paths_) CopyInto(path);
        owner_.drops_ = owner_.drops_ + 1;
        return S_OK;
    }

 private:
    void CopyInto(const std::string& path) const {
        const std::string from = path + '\0';
        const std::string to = owner_.folder_ + '\0';
        SHFILEOPSTRUCTA request{};
        request.wFunc = FO_COPY;
        request.pFrom = from.c_str();
        request.pTo = to.c_str();
        request.fFlags = FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT;
        SHFileOperationA(&request);
    }

    FileDropWindow& owner_;
};

FileDropWindow::FileDropWindow(POINT at, std::string folder)
    : folder_(std::move(folder)), target_(new Target(*this)) {
    window_ = MakeSmallWindow("FileDropWindow", DefWindowProcA, at);
    RegisterDragDrop(window_, target_);
}

FileDropWindow::~FileDropWindow() {
    RevokeDragDrop(window_);
    DestroyWindow(window_);
    delete target_;
}

}  // namespace vistrel::test
