// Reads ZIP files: what is in them, and one entry after the other, in pieces.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "archive/fault.h"
#include "archive/inflate.h"
#include "pictures/picture_file.h"

namespace vistrel::archive {

struct Entry {
    /// UTF-8; folders end in "/", which parts folders and file. No part of it leads upwards.
    std::string name;
    std::uint32_t modified = 0;  ///< as MS-DOS keeps it: the date's 16 bits above the time's
    std::uint32_t size = 0;      ///< of what is unpacked, as the archive says

    // How it is packed.
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint32_t sum = 0;
    std::uint32_t packedSize = 0;
    std::size_t headerAt = 0;

    bool IsFolder() const { return name.back() == '/'; }
};

struct Directory {
    ArchiveFault fault = ArchiveFault::None;  ///< there are no entries with one
    std::vector<Entry> entries;               ///< in the archive's order
};

/// More entries are in no archive that is read.
inline constexpr std::size_t kMostEntries = 16384;

/// Gives a name that is in the DOS code page as UTF-8.
using DosToUtf8 = std::function<std::string(const std::string& name)>;

/// What a ZIP file holds. Whatever is wrong with the file or with a name in it ends the reading;
/// what is wrong with a single entry shows when that is unpacked.
Directory ReadDirectory(const pictures::PictureFile& file, const DosToUtf8& toUtf8);

/// Hands an entry's bytes to `sink`, never more than its size, and compares their sum with the
/// entry's: what came before a fault is worth nothing.
ArchiveFault Unpack(const pictures::PictureFile& file, const Entry& entry, const Sink& sink);

/// False for a UTF-8 name that could be taken for a place outside the folder that an archive is
/// unpacked into: it is absolute, holds a drive, a backslash or a control character, or a part of
/// it is empty or nothing but dots and blanks. A last "/" is part of no name.
bool IsSafeName(const std::string& name);

}  // namespace vistrel::archive
