// Logo sets that go into ZIP files and come out of them.
#include <windows.h>

#include "archive/zip_format.h"
#include "archive/zip_reader.h"
#include "core/export_sets.h"
#include "core/import_sets.h"
#include "core/library.h"
#include "core/logo_set.h"
#include "pictures/bmp/writer.h"
#include "platform/code_pages.h"
#include "platform/fault.h"
#include "platform/file_time.h"
#include "tests/support/machine/machine.h"
#include "tests/support/machine/zip_file.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

/// A bitmap of one colour, 8 bits a pixel.
std::string Bitmap(int width, int height, unsigned char color) {
    const std::vector<std::uint8_t> indices(static_cast<std::size_t>(width * height), color);
    const std::vector<std::uint8_t> palette(256 * 4);
    const auto bytes = bmp::ColormappedBmp(indices.data(), width, height, 256, palette.data());
    return {bytes.begin(), bytes.end()};
}

class ArchivedSets : public Machine {
 protected:
    std::string Archive(const std::vector<Packed>& files, const std::string& name = "given.zip") {
        Put(root + name, ZipOf(files));
        return root + name;
    }

    static Names NamesOf(const UnpackedSets& sets) {
        Names names;
        for (const UnpackedSet& set : sets.Sets()) names.push_back(set.name);
        return names;
    }

    /// Unpacks an archive and takes all its sets; what kept it from that.
    std::string ImportAll(const std::string& path) {
        UnpackedSets sets(logos);
        const std::string fault = sets.Unpack(path);
        taken_ = NamesOf(sets);
        for (std::size_t i = 0; i < taken_.size(); ++i) EXPECT_TRUE(sets.Take(i)) << taken_[i];
        return fault;
    }

    /// What our reader finds in an archive on the disk: names and contents.
    std::vector<std::pair<std::string, std::string>> PackedIn(const std::string& path) {
        const std::string bytes = Contents(path).value_or("");
        const std::vector<std::uint8_t> file(bytes.begin(), bytes.end());
        std::vector<std::pair<std::string, std::string>> found;
        const archive::Directory all = archive::ReadDirectory(file, DosToUtf8);
        for (const archive::Entry& entry : all.entries) {
            std::string contents;
            archive::Unpack(file, entry, [&](std::span<const std::uint8_t> piece) {
                contents.append(piece.begin(), piece.end());
                return true;
            });
            found.emplace_back(entry.name, contents);
        }
        return found;
    }

    const std::string zip = root + "given.zip";
    Names taken_;
};

TEST_F(ArchivedSets, ASetIsAFolderOfItsScreensInTheFile) {
    PutScreens(logos + "Blue\\", "Blue");
    Put(logos + "Blue\\notes.txt", "no screen");
    EXPECT_EQ(ExportSets(logos, {"Blue"}, zip).result, ExportResult::Written);
    EXPECT_EQ(PackedIn(zip), (std::vector<std::pair<std::string, std::string>>{
                                 {"Blue/LOGO.SYS", "Blue LOGO.SYS"},
                                 {"Blue/LOGOW.SYS", "Blue LOGOW.SYS"},
                                 {"Blue/LOGOS.SYS", "Blue LOGOS.SYS"}}));
}

TEST_F(ArchivedSets, SeveralSetsGoIntoOneFileSingleOnesWithTheirStartupScreen) {
    PutScreens(logos + "Blue\\", "Blue");
    PutScreens(logos + "Dawn.sls\\", "Dawn");
    MakeFolders(logos + "Empty\\");
    EXPECT_EQ(ExportSets(logos, {"Dawn.sls", "Empty", "gone", "Blue"}, zip).result,
              ExportResult::Written);
    const auto packed = PackedIn(zip);
    ASSERT_EQ(packed.size(), 4u);
    EXPECT_EQ(packed[0].first, "Dawn.sls/LOGO.SYS");
    EXPECT_EQ(packed[1].first, "Blue/LOGO.SYS");
}

TEST_F(ArchivedSets, WithoutAnyScreenNoFileIsWritten) {
    MakeFolders(logos + "Empty\\");
    EXPECT_EQ(ExportSets(logos, {"Empty"}, zip).result, ExportResult::NoScreens);
    EXPECT_FALSE(Exists(zip));
}

TEST_F(ArchivedSets, ComeBackAsTheyWentWithTheirTimes) {
    const std::string odd = OddName();
    PutScreens(logos + odd + "\\", "odd");
    SetModifiedAt(logos + odd + "\\LOGO.SYS", kPackedAt);
    ASSERT_EQ(ExportSets(logos, {odd}, zip).result, ExportResult::Written);
    RemoveTree(logos + odd);
    EXPECT_EQ(ImportAll(zip), "");
    EXPECT_EQ(taken_, Names{odd});
    EXPECT_EQ(NamesIn(logos), Names{odd});
    EXPECT_EQ(Contents(logos + odd + "\\LOGOS.SYS"), "odd LOGOS.SYS");
    EXPECT_EQ(ModifiedAt(logos + odd + "\\LOGO.SYS"), kPackedAt);
    EXPECT_EQ(AttributesOf(logos + odd), DWORD{FILE_ATTRIBUTE_DIRECTORY});
}

TEST_F(ArchivedSets, AnExportThatFailsAnywhereLeavesTheFileThatWasThere) {
    PutScreens(logos + "Blue\\", "Blue");
    const Names before = {"boot", "given.zip", "logos", "program", "startup", "windows"};
    bool written = false;
    WithEachOperationFailing(
        [&] { Put(zip, "older"); },
        [&] { written = ExportSets(logos, {"Blue"}, zip).result == ExportResult::Written; },
        [&](int) {
            // A screen that cannot be looked up is left out; a time that cannot be told is 0.
            EXPECT_EQ(Contents(zip) == "older", !written);
            EXPECT_EQ(PackedIn(zip).size() >= 2, written);
            EXPECT_EQ(NamesIn(root), before);
        });
    for (int from = 1; from < 12; ++from) {
        Put(zip, "older");
        fault::FailFromOperation(from);
        EXPECT_NE(ExportSets(logos, {"Blue"}, zip).result, ExportResult::Written) << from;
        fault::Reset();
        EXPECT_EQ(Contents(zip), "older") << from;
    }
}

TEST_F(ArchivedSets, FoldersWithScreensBecomeSetsWhereverTheyLie) {
    EXPECT_EQ(ImportAll(Archive({{"readme.txt", "hello"},
                                 {"Blue/", ""},
                                 {"Blue/logo.sys", "blue startup"},
                                 {"Blue/LogoW.Sys", "blue wait"},
                                 {"old stuff/1996/Red/LOGOS.SYS", "red shutdown"},
                                 {"Dawn.SLS/LOGO.SYS", "dawn"}})),
              "");
    EXPECT_EQ(taken_, (Names{"Blue", "Red", "Dawn.SLS"}));
    EXPECT_EQ(NamesIn(logos), (Names{"Blue", "Dawn.SLS", "Red"}));
    EXPECT_EQ(NamesIn(logos + "Blue\\"), (Names{"LOGO.SYS", "LOGOW.SYS"}));
    EXPECT_EQ(Contents(logos + "Blue\\LOGOW.SYS"), "blue wait");
    EXPECT_EQ(Contents(logos + "Red\\LOGOS.SYS"), "red shutdown");
}

TEST_F(ArchivedSets, ScreensInNoFolderAreCalledAsTheFileIs) {
    EXPECT_EQ(ImportAll(Archive({{"LOGO.SYS", "1"}, {"LOGOW.SYS", "2"}}, "sunset.v2.ZIP")), "");
    EXPECT_EQ(taken_, Names{"sunset.v2"});
    EXPECT_EQ(ImportAll(Archive({{"LOGO.SYS", "1"}}, "moon.zip")), "");
    EXPECT_EQ(taken_, Names{"moon.SLS"});
}

TEST_F(ArchivedSets, OtherBitmapsOfTheSizeOfAScreenAreSingleLogoSets) {
    EXPECT_EQ(ImportAll(Archive({{"pack/Sea.BMP", Bitmap(320, 400, 1)},
                                 {"pack/small.bmp", Bitmap(32, 32, 1)},
                                 {"pack/logo2.sys", Bitmap(320, 400, 2)},
                                 {"pack/notes.bmp", "no bitmap"},
                                 {"pack/LOGO.SYS", Bitmap(320, 400, 3)}})),
              "");
    EXPECT_EQ(taken_, (Names{"pack", "Sea.SLS", "logo2.SLS"}));
    EXPECT_TRUE(Contents(logos + "Sea.SLS\\LOGO.SYS") == Bitmap(320, 400, 1));
    EXPECT_TRUE(Contents(logos + "logo2.SLS\\LOGO.SYS") == Bitmap(320, 400, 2));
    EXPECT_EQ(NamesIn(logos), (Names{"Sea.SLS", "logo2.SLS", "pack"}));
}

TEST_F(ArchivedSets, OfTheSameNameAreNumbered) {
    EXPECT_EQ(ImportAll(Archive({{"a/Blue/LOGO.SYS", "1"},
                                 {"b/blue/LOGO.SYS", "2"},
                                 {"c/Sea.bmp", Bitmap(320, 400, 1)},
                                 {"d/Sea.bmp", Bitmap(320, 400, 2)}})),
              "");
    EXPECT_EQ(taken_, (Names{"Blue", "blue 2", "Sea.SLS", "Sea 2.SLS"}));
}

TEST_F(ArchivedSets, OfTwoScreensOfTheSameNameTheFirstIsTaken) {
    EXPECT_EQ(ImportAll(Archive({{"Blue/LOGO.SYS", "first"}, {"Blue/logo.sys", "second"}})), "");
    EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), "first");
}

TEST_F(ArchivedSets, OfMoreBytesThanAnyCollectionAreRefused) {
    std::vector<Packed> files;
    for (int i = 0; i < 257; ++i) files.push_back({"Set" + std::to_string(i) + "/LOGO.SYS", "x"});
    std::string bytes = ZipOf(files);
    // Each says that it unpacks to a megabyte.
    for (std::size_t at = bytes.find("PK\1\2"); at != std::string::npos;
         at = bytes.find("PK\1\2", at + 4))
        bytes.replace(at + 24, 4, std::string("\0\0\x10\0", 4));
    Put(zip, bytes);
    EXPECT_EQ(ImportAll(zip), "holds more than any collection of screens");
    EXPECT_EQ(NamesIn(logos), Names{});
}

TEST_F(ArchivedSets, AnExistingSetGetsTheNewScreensAndKeepsTheOthers) {
    PutScreens(logos + "Blue\\", "old");
    GiveAttributes(logos + "Blue\\LOGO.SYS", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(ImportAll(Archive({{"Blue/LOGO.SYS", "new"}, {"Blue/LOGOS.SYS", "new"}})), "");
    EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), "new");
    EXPECT_EQ(Contents(logos + "Blue\\LOGOW.SYS"), "old LOGOW.SYS");
    EXPECT_EQ(Contents(logos + "Blue\\LOGOS.SYS"), "new");
    EXPECT_EQ(NamesIn(logos), Names{"Blue"});
}

TEST_F(ArchivedSets, AStoppedExportLeavesTheFileThatWasThere) {
    PutScreens(logos + "Blue\\", "Blue");
    PutScreens(logos + "Red\\", "Red");
    Put(zip, "older");
    const Names before = NamesIn(root);
    std::vector<double> shares;
    const auto stop = [&](double share) {
        shares.push_back(share);
        return share == 0;
    };
    EXPECT_EQ(ExportSets(logos, {"Blue", "Red"}, zip, stop).result, ExportResult::Stopped);
    EXPECT_EQ(shares, (std::vector<double>{0, 0.5}));
    EXPECT_EQ(Contents(zip), "older");
    EXPECT_EQ(NamesIn(root), before);
}

TEST_F(ArchivedSets, AStoppedImportLeavesNothing) {
    const std::string path = Archive({{"Blue/LOGO.SYS", "new"}, {"Red/LOGO.SYS", "new"}});
    std::vector<double> shares;
    {
        UnpackedSets sets(logos);
        EXPECT_EQ(sets.Unpack(path,
                              [&](double share) {
                                  shares.push_back(share);
                                  return share == 0;
                              }),
                  "");
        EXPECT_TRUE(sets.Sets().empty());
    }
    EXPECT_EQ(shares, (std::vector<double>{0, 0.5}));
    EXPECT_EQ(NamesIn(logos), Names{});
}

TEST_F(ArchivedSets, NotTakenLeaveNothing) {
    PutScreens(logos + "Blue\\", "old");
    {
        UnpackedSets sets(logos);
        EXPECT_EQ(sets.Unpack(Archive({{"Blue/LOGO.SYS", "new"}, {"New/LOGO.SYS", "new"}})), "");
        EXPECT_EQ(NamesOf(sets), (Names{"Blue", "New"}));
        // While they wait for the user's word they are no sets.
        EXPECT_EQ(LogoSetNames(logos), Names{"Blue"});
    }
    EXPECT_EQ(NamesIn(logos), Names{"Blue"});
    EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), "old LOGO.SYS");
}

TEST_F(ArchivedSets, EachBrokenFileIsToldInWordsAndLeavesNothing) {
    const std::string sound = ZipOf({{"Blue/LOGO.SYS", "content"}, {"Red/LOGO.SYS", "content"}});
    const auto changed = [&](std::size_t at, char value) {
        std::string zip = sound;
        zip[at] = value;
        return zip;
    };
    const std::size_t entry = sound.rfind("PK\1\2");
    const std::vector<std::pair<std::string, std::string>> broken = {
        {"", "is not a ZIP file"},
        {"hello", "is not a ZIP file"},
        {sound.substr(0, 60), "is cut short: its end is missing"},
        {changed(43, 'x'), "is damaged"},
        {changed(entry + 8, 1), "is encrypted: unpack it with its password first"},
        {changed(entry + 10, 6), "is packed in a way that Vistrel does not know"},
        {changed(sound.size() - 22 + 4, 1), "is one of several parts: join them first"},
        {ZipOf({{"../Blue/LOGO.SYS", "x"}}), "holds names that lead out of it"},
        {ZipOf({{"C:/Blue/LOGO.SYS", "x"}}), "holds names that lead out of it"},
        {ZipOf({{"readme.txt", "x"}}), "holds no screens"},
        {ZipOf({{"NUL/LOGO.SYS", "x"}}), "holds \"NUL\", which cannot be the name of a logo set"},
        {ZipOf({{"a?b/LOGO.SYS", "x"}}), "holds \"a?b\", which cannot be the name of a logo set"},
        {ZipOf({{"Blue/LOGO.SYS", std::string(1024 * 1024 + 1, 'x')}}),
         "holds a screen that is larger than any that Windows shows"},
    };
    for (const auto& [bytes, words] : broken) {
        Put(zip, bytes);
        EXPECT_EQ(ImportAll(zip), words);
        EXPECT_TRUE(taken_.empty());
        EXPECT_EQ(NamesIn(logos), Names{}) << words;
    }
    EXPECT_EQ(ImportAll(root + "gone.zip"), "cannot be read");
}

TEST_F(ArchivedSets, AnImportThatFailsAnywhereLeavesWholeSets) {
    const std::string path =
        Archive({{"Blue/LOGO.SYS", "new"}, {"Blue/LOGOW.SYS", "new"}, {"Red/LOGO.SYS", "new"}});
    const auto isWhole = [&](const std::string& set, const std::string& before) {
        const auto startup = Contents(logos + set + "\\LOGO.SYS").value_or("-");
        EXPECT_TRUE(startup == "new" || startup == before) << set << ": " << startup;
        return startup == "new";
    };
    WithEachOperationFailing(
        [&] {
            RemoveTree(logos);
            PutScreens(logos + "Blue\\", "old");
        },
        [&] {
            UnpackedSets sets(logos);
            sets.Unpack(path);
            for (std::size_t i = 0; i < sets.Sets().size(); ++i) sets.Take(i);
        },
        [&](int) {
            const bool isNew = isWhole("Blue", "old LOGO.SYS");
            EXPECT_EQ(Contents(logos + "Blue\\LOGOW.SYS").value_or("-"),
                      isNew ? "new" : "old LOGOW.SYS");
            EXPECT_EQ(Contents(logos + "Blue\\LOGOS.SYS"), "old LOGOS.SYS");
            isWhole("Red", "-");
        });
}

}  // namespace
}  // namespace vistrel::test
