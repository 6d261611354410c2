// Profile files: sections of "key=value" lines.
#pragma once

#include <string>

namespace vistrel::platform {

/// An integer key of a section; `otherwise` when file, section or key is missing.
int ReadProfileInt(const std::string& file, const std::string& section, const std::string& key,
                   int otherwise);
/// A text key of a section; empty when missing.
std::string ReadProfileText(const std::string& file, const std::string& section,
                            const std::string& key);
/// Writes a text under a key. False when the file cannot be written.
bool WriteProfileText(const std::string& file, const std::string& section, const std::string& key,
                      const std::string& text);

}  // namespace vistrel::platform
