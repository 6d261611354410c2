// Profile files, read and written by the system.
#include "platform/profile.h"

#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

int ReadProfileInt(const std::string& file, const std::string& section, const std::string& key,
                   int otherwise) {
    if (fault::ShouldFail()) return otherwise;
    return static_cast<int>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), otherwise, file.c_str()));
}

std::string ReadProfileText(const std::string& file, const std::string& section,
                            const std::string& key) {
    if (fault::ShouldFail()) return {};
    char text[2048] = {};
    GetPrivateProfileStringA(section.c_str(), key.c_str(), "", text, sizeof text, file.c_str());
    return text;
}

bool WriteProfileText(const std::string& file, const std::string& section, const std::string& key,
                      const std::string& text) {
    if (fault::ShouldFail()) return false;
    return WritePrivateProfileStringA(section.c_str(), key.c_str(), text.c_str(), file.c_str()) !=
           0;
}

}  // namespace vistrel::platform
