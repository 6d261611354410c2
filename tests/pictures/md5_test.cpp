// The digest that the corpus is judged by is the right one.
#include "tests/support/picture_files/md5.h"

#include <gtest/gtest.h>

#include <string_view>

namespace vistrel::test {
namespace {

std::string Md5OfText(std::string_view text) {
    return Md5({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

// The examples of RFC 1321.
TEST(Md5Test, DigestsOfKnownTexts) {
    EXPECT_EQ(Md5OfText(""), "d41d8cd98f00b204e9800998ecf8427e");
    EXPECT_EQ(Md5OfText("abc"), "900150983cd24fb0d6963f7d28e17f72");
    EXPECT_EQ(Md5OfText("12345678901234567890123456789012345678901234567890123456789012345678901234"
                        "567890"),
              "57edf4a22be3c955ac49da2e2107b67a");
}

}  // namespace
}  // namespace vistrel::test
