#include "platform/shell_link.h"

#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

namespace {

/// COM for as long as it lives.
class ComUse {
 public:
    ComUse() : started_(SUCCEEDED(CoInitialize(nullptr))) {}
    ~ComUse() {
        if (started_) CoUninitialize();
    }
    ComUse(const ComUse&) = delete;
    ComUse& operator=(const ComUse&) = delete;

 private:
    bool started_;
};

/// A COM interface that is released at the end.
template <typename Interface>
class ComPointer {
 public:
    ComPointer() = default;
    ~ComPointer() {
        if (pointer_) pointer_->Release();
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;

    Interface* operator->() const { return pointer_; }
    void** Receive() { return reinterpret_cast<void**>(&pointer_); }

 private:
    Interface* pointer_ = nullptr;
};

/// A link and the file it is kept in, which is named in wide characters whatever the system.
class Link {
 public:
    /// False when the system makes no links or `path` is too long.
    bool Open(const std::string& path) {
        return MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, path_, MAX_PATH) != 0 &&
               SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                          IID_IShellLinkA, link_.Receive())) &&
               SUCCEEDED(link_->QueryInterface(IID_IPersistFile, file_.Receive()));
    }
    IShellLinkA* operator->() const { return link_.operator->(); }
    bool Load() { return SUCCEEDED(file_->Load(path_, STGM_READ)); }
    bool Save() { return SUCCEEDED(file_->Save(path_, TRUE)); }

 private:
    const ComUse com_;  // ends after the interfaces
    ComPointer<IShellLinkA> link_;
    ComPointer<IPersistFile> file_;
    wchar_t path_[MAX_PATH] = {};
};

}  // namespace

bool WriteShellLink(const std::string& linkPath, const std::string& target,
                    const std::string& arguments, const std::string& workingFolder,
                    const std::string& description) {
    if (fault::ShouldFail()) return false;
    Link link;
    if (!link.Open(linkPath) || FAILED(link->SetPath(target.c_str()))) return false;
    link->SetArguments(arguments.c_str());
    link->SetWorkingDirectory(workingFolder.c_str());
    link->SetDescription(description.c_str());
    return link.Save();
}

std::string ShellLinkTarget(const std::string& linkPath) {
    if (fault::ShouldFail()) return {};
    Link link;
    char target[MAX_PATH] = {};
    if (!link.Open(linkPath) || !link.Load() ||
        FAILED(link->GetPath(target, sizeof target, nullptr, 0)))
        return {};
    return target;
}

}  // namespace vistrel::platform
