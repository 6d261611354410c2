#include "core/cm_dialog.h"

#include <algorithm>

#include "core/generali.h"
#include "platform/open_dialog.h"

namespace vistrel::core {
namespace {

constexpr std::size_t kBufferLength = 254;

}  // namespace

std::string FileTitle;

std::string DialogFilter(std::string filter) {
    if (filter.empty() || filter.back() != '|') filter += '|';
    std::replace(filter.begin(), filter.end(), '|', '\0');
    return filter;
}

std::string ShowOpenDialog(platform::WindowHandle owner, const std::string& filter,
                           const std::string& title, const std::string& initialFolder) {
    platform::OpenDialogRequest request;
    request.owner = owner;
    request.filter = DialogFilter(filter);
    request.title = title;
    request.initialFolder = initialFolder;
    request.file = std::string(kBufferLength, ' ');
    request.fileTitle = std::string(kBufferLength, '\0');
    const bool chosen = platform::RunOpenDialog(request);
    FileTitle = CutAtNul(request.fileTitle);
    return chosen ? Trim(request.file) : std::string();
}

std::string ShowSaveDialog(platform::WindowHandle owner, const std::string& filter,
                           const std::string& title, const std::string& name,
                           const std::string& ending) {
    platform::OpenDialogRequest request;
    request.owner = owner;
    request.filter = DialogFilter(filter);
    request.title = title;
    request.file = name;
    request.file.resize(kBufferLength);
    request.fileTitle.resize(kBufferLength);
    return platform::RunSaveDialog(request, ending) ? CutAtNul(request.file) : std::string();
}

}  // namespace vistrel::core
