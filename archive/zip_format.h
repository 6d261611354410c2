// The records of a ZIP file.
#pragma once

#include <cstdint>

namespace vistrel::archive {

inline constexpr std::uint32_t kLocalHeader = 0x04034B50;
inline constexpr std::uint32_t kDirectoryHeader = 0x02014B50;
inline constexpr std::uint32_t kEndRecord = 0x06054B50;
inline constexpr std::uint32_t kZip64Locator = 0x07064B50;
inline constexpr std::uint32_t kSpanMark = 0x08074B50;  ///< begins one of several parts

inline constexpr std::size_t kLocalHeaderSize = 30;
inline constexpr std::size_t kDirectoryHeaderSize = 46;
inline constexpr std::size_t kEndRecordSize = 22;
inline constexpr std::size_t kZip64LocatorSize = 20;

inline constexpr std::uint16_t kEncryptedFlag = 1 << 0;
inline constexpr std::uint16_t kUtf8Flag = 1 << 11;

inline constexpr std::uint16_t kStored = 0;
inline constexpr std::uint16_t kDeflated = 8;

}  // namespace vistrel::archive
