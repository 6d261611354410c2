#include "archive/fault.h"

namespace vistrel::archive {

const char* InWords(ArchiveFault fault) {
    switch (fault) {
        case ArchiveFault::None:
            return "";
        case ArchiveFault::NotAnArchive:
            return "is not a ZIP file";
        case ArchiveFault::CutShort:
            return "is cut short: its end is missing";
        case ArchiveFault::Damaged:
            return "is damaged";
        case ArchiveFault::Encrypted:
            return "is encrypted: unpack it with its password first";
        case ArchiveFault::Zip64:
            return "is of the kind for more than 4 GB";
        case ArchiveFault::Parts:
            return "is one of several parts: join them first";
        case ArchiveFault::UnknownMethod:
            return "is packed in a way that Vistrel does not know";
        case ArchiveFault::UnsafeName:
            return "holds names that lead out of it";
        case ArchiveFault::TooMuch:
            return "holds more than any collection of screens";
        case ArchiveFault::Stopped:
            return "could not be unpacked";
    }
    return "";
}

}  // namespace vistrel::archive
