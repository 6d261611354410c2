// When a file was last changed: as MS-DOS and archives keep it, the date's 16 bits above the
// time's, local time, in steps of two seconds; and in words.
#pragma once

#include <cstdint>
#include <string>

namespace vistrel::platform {

/// 0 when it cannot be told.
std::uint32_t ModifiedAt(const std::string& path);
/// Nothing happens to a file that cannot be changed, nor by a time that is none.
void SetModifiedAt(const std::string& path, std::uint32_t time);

/// The day of a time as FolderEntry::modified has it, in the user's short form of dates. Empty for
/// 0 and for a time that is none.
std::string DayInWords(std::uint64_t modified);

}  // namespace vistrel::platform
