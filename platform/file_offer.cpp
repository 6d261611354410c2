#include "platform/file_offer.h"

#include <windows.h>
// ole2.h and shlobj.h need windows.h first.
#include <ole2.h>
#include <shlobj.h>

#include <utility>

#include "platform/fault.h"

namespace vistrel::platform {
namespace {

/// Releases an object of the system's when it goes.
template <typename Object>
class Owned {
 public:
    explicit Owned(Object* object = nullptr) : object_(object) {}
    ~Owned() {
        if (object_) object_->Release();
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    Object* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    Object* Get() const { return object_; }
    Object* Take() { return std::exchange(object_, nullptr); }
    void** Place() { return reinterpret_cast<void**>(&object_); }
    Object** TypedPlace() { return &object_; }

 private:
    Object* object_;
};

std::wstring Wide(const std::string& text) {
    const int length = MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, wide.data(), length);
    return wide;
}

/// The shell's numbers for entries of one of its folders; freed with this.
class EntryList {
 public:
    EntryList() { SHGetMalloc(memory_.TypedPlace()); }
    ~EntryList() {
        for (const LPCITEMIDLIST entry : entries_) memory_->Free(const_cast<ITEMIDLIST*>(entry));
    }
    EntryList(const EntryList&) = delete;
    EntryList& operator=(const EntryList&) = delete;

    bool Add(IShellFolder* parent, const std::string& name) {
        LPITEMIDLIST entry = nullptr;
        std::wstring wide = Wide(name);
        if (FAILED(
                parent->ParseDisplayName(nullptr, nullptr, wide.data(), nullptr, &entry, nullptr)))
            return false;
        entries_.push_back(entry);
        return true;
    }
    UINT Count() const { return static_cast<UINT>(entries_.size()); }
    LPCITEMIDLIST* Data() { return entries_.data(); }

 private:
    Owned<IMalloc> memory_;
    std::vector<LPCITEMIDLIST> entries_;
};

}  // namespace

WithOle::WithOle() : hasOle_(SUCCEEDED(OleInitialize(nullptr))) {}

WithOle::~WithOle() {
    if (hasOle_) OleUninitialize();
}

IDataObject* OfferEntries(WindowHandle owner, const std::string& folder,
                          const std::vector<std::string>& names) {
    if (fault::ShouldFail()) return nullptr;
    Owned<IShellFolder> desktop;
    if (FAILED(SHGetDesktopFolder(desktop.TypedPlace()))) return nullptr;
    EntryList way;
    Owned<IShellFolder> parent;
    if (!way.Add(desktop.Get(), folder) ||
        FAILED(desktop->BindToObject(way.Data()[0], nullptr, IID_IShellFolder, parent.Place())))
        return nullptr;
    EntryList entries;
    for (const std::string& name : names) entries.Add(parent.Get(), name);
    if (entries.Count() == 0) return nullptr;
    Owned<IDataObject> offer;
    parent->GetUIObjectOf(owner, entries.Count(), entries.Data(), IID_IDataObject, nullptr,
                          offer.Place());
    return offer.Take();
}

bool CopyToClipboard(WindowHandle owner, const std::string& folder,
                     const std::vector<std::string>& names) {
    const WithOle ole;
    const Owned<IDataObject> offer(OfferEntries(owner, folder, names));
    return offer && SUCCEEDED(OleSetClipboard(offer.Get())) && SUCCEEDED(OleFlushClipboard());
}

}  // namespace vistrel::platform
