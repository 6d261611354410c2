// Why a ZIP file, or something in it, cannot be read.
#pragma once

namespace vistrel::archive {

enum class ArchiveFault {
    None,
    NotAnArchive,   ///< no ZIP file at all
    CutShort,       ///< it begins as one, and its end is missing
    Damaged,        ///< it contradicts itself, or what is unpacked has another check sum
    Encrypted,      ///< it asks for a password
    Zip64,          ///< of the newer kind for more than 4 GB
    Parts,          ///< one of several parts
    UnknownMethod,  ///< packed otherwise than by "deflate"
    UnsafeName,     ///< a name in it leads out of the folder that it is unpacked into
    TooMuch,        ///< more than any library of screens would hold
    Stopped,        ///< the one who takes what is unpacked wants no more
};

/// What is wrong, as half a sentence behind "The file": "is damaged". Empty without a fault.
const char* InWords(ArchiveFault fault);

}  // namespace vistrel::archive
