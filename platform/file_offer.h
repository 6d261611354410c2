// Files and folders that are offered to other programs, as the file manager offers its own.
#pragma once

#include <string>
#include <vector>

#include "platform/handles.h"

struct IDataObject;

namespace vistrel::platform {

/// Gives the thread OLE as long as it lives.
class WithOle {
 public:
    WithOle();
    ~WithOle();
    WithOle(const WithOle&) = delete;
    WithOle& operator=(const WithOle&) = delete;

 private:
    bool hasOle_;
};

/// What the file manager would offer for entries of a folder; those that are not there are left
/// out. Null when none is. The thread must have OLE, and the caller releases it.
IDataObject* OfferEntries(WindowHandle owner, const std::string& folder,
                          const std::vector<std::string>& names);

/// Puts entries of a folder on the clipboard, from where they can be pasted in another folder, even
/// when this program has ended. False when none is there, or the clipboard is in use.
bool CopyToClipboard(WindowHandle owner, const std::string& folder,
                     const std::vector<std::string>& names);

}  // namespace vistrel::platform
