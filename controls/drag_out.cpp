#include "controls/drag_out.h"

#include <windows.h>
// ole2.h needs windows.h first.
#include <ole2.h>

#include "platform/file_offer.h"

namespace vistrel::controls {
namespace {

bool draggingOut = false;

/// Goes on until the left button is let go; Esc and the right button break off.
class LeftButton final : public IDropSource {
 public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDropSource);
        *object = known ? static_cast<IDropSource*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    // Lives as long as the drag, on the stack.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD buttons) override {
        if (escape || (buttons & MK_RBUTTON)) return DRAGDROP_S_CANCEL;
        return buttons & MK_LBUTTON ? S_OK : DRAGDROP_S_DROP;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

}  // namespace

bool IsDraggingOut() { return draggingOut; }

void DragOut(platform::WindowHandle source, const std::string& folder,
             const std::vector<std::string>& names) {
    const platform::WithOle ole;
    IDataObject* const offer = platform::OfferEntries(source, folder, names);
    if (!offer) return;
    LeftButton button;
    DWORD effect = DROPEFFECT_NONE;
    draggingOut = true;
    // Copies only: who might move them instead would take them away.
    DoDragDrop(offer, &button, DROPEFFECT_COPY, &effect);
    draggingOut = false;
    offer->Release();
}

}  // namespace vistrel::controls
