// The MD5 digest, by which the reference tells what a picture's pixels are.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vistrel::test {

/// 32 small hexadecimal digits (RFC 1321).
std::string Md5(std::span<const std::uint8_t> bytes);

}  // namespace vistrel::test
