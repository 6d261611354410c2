// A complete help file written down byte by byte, which viewers are known to open. It judges the
// reader: two topics, "Tiny" (the contents) with a link to "Tutorial", which has the number 30.
#pragma once

#include <string>

namespace vistrel::help_test {

struct TinyPart {
    std::size_t place;
    const char* hex;
};

constexpr TinyPart kTinyParts[] = {
    {0x0000, "3f5f030047120000ffffffff76160000"},
    // |SYSTEM
    {0x0010, "3d00000034000000006c0321000100000000000000"},
    {0x0025, "0100050054696e7900"},
    {0x002e, "0300040000000000"},
    {0x0036, "09000a0000000000000000000904"},
    {0x0044, "0b0005000000020000"},
    // |TOPIC: one block
    {0x004d, "420100003901000000"},
    {0x0056, "ffffffff0c00000000000000"},
    // header of "Tiny", its heading, its text with the link
    {0x0062, "3500000004000000ffffffff410000003100000002"},
    {0x0077, "97000000ffffffffffffffff00000000ffffffff41000000a300000054696e79"},
    {0x0097, "2b000000070000000c0000006c0000002400000020"},
    {0x00ac, "18800e0080000004009080010082ff0054696e790000"},
    {0x00c2, "370000000e00000041000000a30000002900000020"},
    {0x00d7, "22801c008000000000800000e35f0a01008982ff"},
    {0x00eb, "00536565200068657265002e0000"},
    // header of "Tutorial", its text
    {0x00f9, "39000000080000006c000000dc0000003100000002"},
    {0x010e, "65000000ffffffffffffffff01000000ffffffffdc000000080100005475746f7269616c"},
    {0x0132, "2c00000009000000a3000000080100002300000020"},
    {0x0147, "16801200800000000080000082ff0053746570203100"},
    // the end record
    {0x015e, "3100000000000000dc000000ffffffff3100000002"},
    {0x0173, "31000000ffffffffffffffff02000000ffffffffffffffffffffffff"},
    // |FONT
    {0x018f, "470000003e000000000100020008002800"},
    {0x01a0, "417269616c"},
    {0x01c0, "0014030000010100010100011c030000010100010100"},
    // |CTXOMAP
    {0x01d6, "130000000a0000000001001e00000015000000"},
    // |TTLBTREE
    {0x01e9, "2f08000026080000003b29020000084c7a"},
    {0x0208, "000000000000ffff0100010002000000e2070200ffffffff"},
    {0x0220, "0000000054696e7900150000005475746f7269616c00"},
    // |CONTEXT
    {0x0a18, "2f08000026080000003b29020000084c34"},
    {0x0a37, "000000000000ffff0100010002000000e8070200ffffffff"},
    {0x0a4f, "5f0a010015000000a6243d0500000000"},
    // the directory
    {0x1247, "2f04000026040000043b29020400047a34"},
    {0x1266, "000000000000ffff0100010006000000af030600ffffffff"},
    {0x127e, "7c434f4e5445585400180a00007c4354584f4d415000d60100007c464f4e54008f010000"},
    {0x12a2, "7c53595354454d00100000007c544f504943004d0000007c54544c425452454500e9010000"},
};

inline std::string TinyHelpFile() {
    std::string file(5750, '\0');
    for (const TinyPart& part : kTinyParts) {
        const std::string hex = part.hex;
        for (std::size_t i = 0; i < hex.size(); i += 2)
            file[part.place + i / 2] = static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    }
    return file;
}

}  // namespace vistrel::help_test
