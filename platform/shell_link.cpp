// Writing shell links.
#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

#include "platform/fault.h"
#include "platform/shell.h"

namespace vistrel {

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

/// Saves a link; a file is named in wide characters whatever the system.
bool SaveLink(IPersistFile& file, const std::string& path) {
    wchar_t widePath[MAX_PATH] = {};
    if (!MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, widePath, MAX_PATH)) return false;
    return SUCCEEDED(file.Save(widePath, TRUE));
}

}  // namespace

bool WriteShellLink(const std::string& linkPath, const std::string& target,
                    const std::string& arguments, const std::string& workingFolder,
                    const std::string& description) {
    if (fault::Strikes()) return false;
    const ComUse com;
    ComPointer<IShellLinkA> link;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                link.Receive())))
        return false;
    if (FAILED(link->SetPath(target.c_str()))) return false;
    link->SetArguments(arguments.c_str());
    link->SetWorkingDirectory(workingFolder.c_str());
    link->SetDescription(description.c_str());
    ComPointer<IPersistFile> file;
    if (FAILED(link->QueryInterface(IID_IPersistFile, file.Receive()))) return false;
    return SaveLink(*file.operator->(), linkPath);
}

}  // namespace vistrel
