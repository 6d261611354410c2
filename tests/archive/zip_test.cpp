// ZIP files, sound and of each broken kind.
#include <gtest/gtest.h>

#include <string>

#include "archive/crc32.h"
#include "archive/zip_format.h"
#include "archive/zip_reader.h"
#include "archive/zip_writer.h"

namespace vistrel::test {

using namespace archive;

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes BytesOf(const std::string& text) { return Bytes(text.begin(), text.end()); }

constexpr std::uint32_t kModified = 0x2E215A40;

struct Content {
    std::string name;
    std::string text;
};

Bytes ZipOf(const std::vector<Content>& contents) {
    Bytes zip;
    ZipWriter writer([&](std::span<const std::uint8_t> bytes) {
        zip.insert(zip.end(), bytes.begin(), bytes.end());
        return true;
    });
    for (const Content& content : contents)
        EXPECT_TRUE(writer.Add(content.name, kModified, BytesOf(content.text)));
    EXPECT_TRUE(writer.Finish());
    return zip;
}

Directory DirectoryOf(const Bytes& zip) {
    return ReadDirectory(zip, [](const std::string& name) { return "dos " + name; });
}

struct Unpacked {
    ArchiveFault fault;
    std::string text;
};

Unpacked UnpackFirst(const Bytes& zip) {
    const Directory all = DirectoryOf(zip);
    if (all.fault != ArchiveFault::None) return {all.fault, {}};
    Unpacked result;
    result.fault = Unpack(zip, all.entries.at(0), [&](std::span<const std::uint8_t> bytes) {
        result.text.append(bytes.begin(), bytes.end());
        return true;
    });
    return result;
}

/// Where the record with this mark begins for the last time.
std::size_t LastOf(const Bytes& zip, std::uint32_t mark) {
    for (std::size_t at = zip.size() - 4; at > 0; --at)
        if (zip[at] == (mark & 0xFF) && zip[at + 1] == (mark >> 8 & 0xFF) &&
            zip[at + 2] == (mark >> 16 & 0xFF) && zip[at + 3] == mark >> 24)
            return at;
    return 0;
}

void SetBytes(Bytes& zip, std::size_t at, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) zip.at(at + i) = static_cast<std::uint8_t>(value >> (8 * i));
}

/// An archive of one file in whose directory a field is another.
Bytes WithField(std::size_t offset, std::uint32_t value, int count) {
    Bytes zip = ZipOf({{"f", "content"}});
    SetBytes(zip, LastOf(zip, kDirectoryHeader) + offset, value, count);
    return zip;
}

Bytes WithEndField(std::size_t offset, std::uint32_t value, int count) {
    Bytes zip = ZipOf({{"f", "content"}});
    SetBytes(zip, LastOf(zip, kEndRecord) + offset, value, count);
    return zip;
}

/// An archive of one deflated file, whose size and sum are those of `text`.
Bytes Deflated(const std::string& packed, const std::string& text) {
    Bytes zip = ZipOf({{"f", packed}});
    const std::size_t entry = LastOf(zip, kDirectoryHeader);
    SetBytes(zip, entry + 10, kDeflated, 2);
    SetBytes(zip, entry + 16, Crc32(0, BytesOf(text)), 4);
    SetBytes(zip, entry + 24, static_cast<std::uint32_t>(text.size()), 4);
    return zip;
}

std::string Binary(std::initializer_list<int> bytes) {
    std::string text;
    for (const int byte : bytes) text += static_cast<char>(byte);
    return text;
}

TEST(Zip, GivesBackWhatWasPutIntoIt) {
    const Bytes zip = ZipOf({{"Blue/LOGO.SYS", "startup"}, {"empty", ""}, {"f", "third"}});
    const Directory all = DirectoryOf(zip);
    ASSERT_EQ(all.fault, ArchiveFault::None);
    ASSERT_EQ(all.entries.size(), 3u);
    EXPECT_EQ(all.entries[0].modified, kModified);
    EXPECT_EQ(all.entries[0].size, 7u);
    const std::vector<std::string> texts = {"startup", "", "third"};
    for (std::size_t i = 0; i < 3; ++i) {
        std::string text;
        EXPECT_EQ(Unpack(zip, all.entries[i],
                         [&](std::span<const std::uint8_t> bytes) {
                             text.append(bytes.begin(), bytes.end());
                             return true;
                         }),
                  ArchiveFault::None);
        EXPECT_EQ(text, texts[i]);
    }
}

TEST(Zip, IsReadBehindAProgramThatUnpacksItAndBeforeAComment) {
    Bytes zip = ZipOf({{"f", "content"}});
    SetBytes(zip, zip.size() - 2, 5, 2);
    for (const char letter : std::string("hello")) zip.push_back(static_cast<std::uint8_t>(letter));
    zip.insert(zip.begin(), 5000, 'M');
    EXPECT_EQ(UnpackFirst(zip).text, "content");
}

TEST(Zip, TellsNamesOfTheDosCodePageFromThoseInUtf8) {
    const Bytes zip = ZipOf({{"plain", ""},
                             {"Gr\xC3\xB6\xC3\x9F"
                              "e",
                              ""}});
    const Directory all = DirectoryOf(zip);
    EXPECT_EQ(all.entries.at(0).name, "dos plain");
    EXPECT_EQ(all.entries.at(1).name,
              "Gr\xC3\xB6\xC3\x9F"
              "e");
}

TEST(Zip, WithoutEntriesIsSound) {
    const Bytes zip = ZipOf({});
    EXPECT_EQ(DirectoryOf(zip).fault, ArchiveFault::None);
    EXPECT_TRUE(DirectoryOf(zip).entries.empty());
}

TEST(Zip, UnpacksStoredFixedAndOwnCodes) {
    EXPECT_EQ(UnpackFirst(Deflated(Binary({1, 3, 0, 0xFC, 0xFF}) + "abc", "abc")).text, "abc");
    // "a" ten times: one letter and a copy from one byte back.
    EXPECT_EQ(UnpackFirst(Deflated(Binary({0x4B, 0x84, 0x03, 0x00}), "aaaaaaaaaa")).text,
              "aaaaaaaaaa");
}

TEST(Zip, RefusesACopyFromBeforeTheBeginning) {
    // The letter, then a copy from two bytes back.
    EXPECT_EQ(UnpackFirst(Deflated(Binary({0x4B, 0x84, 0x43, 0x00}), "aaaaaaaaaa")).fault,
              ArchiveFault::Damaged);
}

TEST(Zip, RefusesSymbolsThatStandForNothing) {
    // The letter "a", then the length and the distance that fixed codes have beside the others.
    EXPECT_EQ(UnpackFirst(Deflated(Binary({0x4B, 0x1C, 0x03, 0x00, 0x00}), "a")).fault,
              ArchiveFault::Damaged);
    EXPECT_EQ(UnpackFirst(Deflated(Binary({0x4B, 0x04, 0x3E, 0x00, 0x00}), "aaaa")).fault,
              ArchiveFault::Damaged);
    // The code for lengths has one symbol, of one bit, and the other bit comes.
    const std::string others(600, '\xFF');
    EXPECT_EQ(UnpackFirst(Deflated(Binary({0x05, 0x00, 0x80, 0xE0}) + others, "a")).fault,
              ArchiveFault::Damaged);
}

TEST(BrokenZip, ThatIsNoArchiveIsCalledSo) {
    EXPECT_EQ(DirectoryOf({}).fault, ArchiveFault::NotAnArchive);
    EXPECT_EQ(DirectoryOf(BytesOf(std::string(100000, 'x'))).fault, ArchiveFault::NotAnArchive);
}

TEST(BrokenZip, CutAnywhereIsCalledSoAndNeverRead) {
    const Bytes zip = ZipOf({{"f", "content"}, {"g", "more"}});
    for (std::size_t size = 4; size < zip.size(); ++size)
        EXPECT_EQ(DirectoryOf(Bytes(zip.begin(), zip.begin() + size)).fault, ArchiveFault::CutShort)
            << size;
}

TEST(BrokenZip, WithAnEncryptedEntryIsNotUnpacked) {
    EXPECT_EQ(UnpackFirst(WithField(8, kEncryptedFlag, 2)).fault, ArchiveFault::Encrypted);
}

TEST(BrokenZip, OfTheLargeKindIsRefused) {
    EXPECT_EQ(DirectoryOf(WithField(20, 0xFFFFFFFF, 4)).fault, ArchiveFault::Zip64);
    EXPECT_EQ(DirectoryOf(WithField(24, 0xFFFFFFFF, 4)).fault, ArchiveFault::Zip64);
    EXPECT_EQ(DirectoryOf(WithField(42, 0xFFFFFFFF, 4)).fault, ArchiveFault::Zip64);
    EXPECT_EQ(DirectoryOf(WithEndField(10, 0xFFFF, 2)).fault, ArchiveFault::Zip64);
    EXPECT_EQ(DirectoryOf(WithEndField(12, 0xFFFFFFFF, 4)).fault, ArchiveFault::Zip64);
    EXPECT_EQ(DirectoryOf(WithEndField(16, 0xFFFFFFFF, 4)).fault, ArchiveFault::Zip64);
    Bytes zip = ZipOf({{"f", "content"}});
    Bytes locator(kZip64LocatorSize);
    SetBytes(locator, 0, kZip64Locator, 4);
    zip.insert(zip.end() - kEndRecordSize, locator.begin(), locator.end());
    EXPECT_EQ(DirectoryOf(zip).fault, ArchiveFault::Zip64);
}

TEST(BrokenZip, OfSeveralPartsIsRefused) {
    EXPECT_EQ(DirectoryOf(WithEndField(4, 1, 2)).fault, ArchiveFault::Parts);
    EXPECT_EQ(DirectoryOf(WithEndField(6, 1, 2)).fault, ArchiveFault::Parts);
    EXPECT_EQ(DirectoryOf(WithEndField(8, 7, 2)).fault, ArchiveFault::Parts);
    EXPECT_EQ(DirectoryOf(WithField(34, 1, 2)).fault, ArchiveFault::Parts);
    EXPECT_EQ(DirectoryOf(BytesOf("PK\x07\x08PK\x03\x04 the first part")).fault,
              ArchiveFault::Parts);
}

TEST(BrokenZip, PackedInAnUnknownWayIsNotUnpacked) {
    for (const int method : {1, 6, 9, 12, 14, 93, 99})
        EXPECT_EQ(UnpackFirst(WithField(10, method, 2)).fault, ArchiveFault::UnknownMethod);
}

TEST(BrokenZip, WithAnotherSumOrSizeIsDamaged) {
    EXPECT_EQ(UnpackFirst(WithField(16, 12345, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(UnpackFirst(WithField(24, 6, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(UnpackFirst(WithField(24, 8, 4)).fault, ArchiveFault::Damaged);
}

TEST(BrokenZip, WhoseRecordsLeadElsewhereIsDamaged) {
    EXPECT_EQ(DirectoryOf(WithField(42, 60, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(UnpackFirst(WithField(42, 1, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(DirectoryOf(WithField(28, 5000, 2)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(DirectoryOf(WithField(0, 0, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(DirectoryOf(WithEndField(12, 5000, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(DirectoryOf(WithEndField(16, 5000, 4)).fault, ArchiveFault::Damaged);
    EXPECT_EQ(DirectoryOf(WithEndField(8, 0x00020002, 4)).fault, ArchiveFault::Damaged);
}

TEST(BrokenZip, WhoseEntriesShareWhatTheyArePackedIntoIsDamaged) {
    Bytes zip = ZipOf({{"f", std::string(1000, 'x')}, {"g", ""}});
    const std::size_t second = LastOf(zip, kDirectoryHeader);
    SetBytes(zip, second + 20, 1000, 4);
    SetBytes(zip, second + 42, 0, 4);
    EXPECT_EQ(DirectoryOf(zip).fault, ArchiveFault::Damaged);
}

TEST(BrokenZip, OfMoreEntriesThanAnyLibraryHasIsRefused) {
    Bytes zip = WithEndField(8, 20000 << 16 | 20000, 4);
    EXPECT_EQ(DirectoryOf(zip).fault, ArchiveFault::TooMuch);
}

TEST(BrokenZip, WithNamesThatLeadOutOfItIsRefused) {
    for (const char* name : {"../f", "a/../../f", "/f", "C:/f", "C:f", "a\\f", "..\\f", "a//f",
                             ".../f", "a/. ./f", "..", ".", " /f", "a/\nf", "", "/", "a:stream"}) {
        const Bytes zip = ZipOf({{std::string(name) + "\xC3\xB6", ""}});
        EXPECT_FALSE(IsSafeName(name)) << name;
        const bool isUnsafeWithMore = !IsSafeName(std::string(name) + "\xC3\xB6");
        EXPECT_EQ(DirectoryOf(zip).fault,
                  isUnsafeWithMore ? ArchiveFault::UnsafeName : ArchiveFault::None)
            << name;
    }
    for (const char* name : {"f", "a/f", "a/", "v1.2/..f", ".f", "f.", "a b/c d"})
        EXPECT_TRUE(IsSafeName(name)) << name;
    EXPECT_FALSE(IsSafeName(std::string("a\0b", 3)));
}

TEST(BrokenZip, ThatUnpacksToMoreThanItSaysIsStoppedThere) {
    Bytes zip = Deflated(Binary({0x4B, 0x84, 0x03, 0x00}), "aaaaa");
    const Unpacked result = UnpackFirst(zip);
    EXPECT_EQ(result.fault, ArchiveFault::Damaged);
    EXPECT_EQ(result.text, "");
}

TEST(BrokenZip, StopsWhereTheSinkWantsNoMore) {
    for (const Bytes& zip : {ZipOf({{"f", std::string(100000, 'x')}}),
                             Deflated(Binary({0x4B, 0x84, 0x03, 0x00}), "aaaaaaaaaa")}) {
        int calls = 0;
        const auto fault = Unpack(zip, DirectoryOf(zip).entries.at(0), [&](auto) {
            ++calls;
            return false;
        });
        EXPECT_EQ(fault, ArchiveFault::Stopped);
        EXPECT_EQ(calls, 1);
    }
}

TEST(BrokenZip, TellsEachFaultInWords) {
    EXPECT_STREQ(InWords(ArchiveFault::None), "");
    for (int fault = 1; fault <= static_cast<int>(ArchiveFault::Stopped); ++fault)
        EXPECT_GT(std::string(InWords(static_cast<ArchiveFault>(fault))).size(), 8u);
}

TEST(ZipWriter, EndsWhereItsBytesAreNotTaken) {
    const Bytes content = BytesOf("content");
    for (int last = 0; last < 4; ++last) {
        int taken = 0;
        ZipWriter writer([&](auto) { return taken++ < last; });
        EXPECT_FALSE(writer.Add("f", kModified, content) && writer.Finish()) << last;
    }
}

}  // namespace
}  // namespace vistrel::test
