#include "tests/hardship/file_commands.h"

#include <gtest/gtest.h>

#include "archive/zip_reader.h"
#include "companions/change_set.h"
#include "companions/mirror_screens.h"
#include "companions/replace_screen.h"
#include "core/close.h"
#include "core/duplicate_set.h"
#include "core/export_sets.h"
#include "core/import_sets.h"
#include "core/install.h"
#include "core/library.h"
#include "core/logo_set.h"
#include "core/picture_sets.h"
#include "core/previous_screens.h"
#include "core/replacing.h"
#include "core/save_set.h"
#include "core/startup_action.h"
#include "pictures/bmp/writer.h"
#include "pictures/file.h"
#include "platform/code_pages.h"
#include "tests/support/machine/machine.h"
#include "tests/support/machine/zip_file.h"

namespace vistrel::test {

using namespace core;

namespace {

constexpr const char* kFilesGoOneByOne =
    "its files are erased one after another, and it was asked for";
constexpr const char* kWrittenStays = "what was written before the step that fails stays written";
constexpr const char* kDeletedFirst =
    "the installed screen is deleted before the new one is copied; it can be taken back";

constexpr const char* kLeftOut = "a picture that cannot be read is left out";
constexpr const char* kNotCopied = "a screen that cannot be copied is left out";

void Nothing(const Place&) {}

// Installing and taking it back.

PreviousScreens Previous(const Place& place) { return {place.program, place.targets}; }

void Install(const Place& place, bool synchronize) {
    Previous(place).Keep("Blue", "Red", synchronize, false);
    InstallLogoSet(place.targets, "Red", synchronize);
}

/// Wherever it was kept what was installed, which is tried first.
void ExpectThatItCanBeTakenBack(const Place& place) {
    PreviousScreens previous = Previous(place);
    const auto record = previous.Last();
    if (!record) return;
    EXPECT_EQ(previous.BringBack(*record), UndoResult::Done);
    for (const auto& [path, contents] : Look(place).installed)
        EXPECT_TRUE(contents.starts_with("old ")) << path;
}

void Undo(const Place& place) {
    PreviousScreens previous = Previous(place);
    if (const auto record = previous.Last()) previous.BringBack(*record);
}

// Sets as a whole.

void Delete(const Place& place, const std::vector<std::string>& names) {
    if (names.size() == 1)
        DeleteSet(nullptr, place.logos + names[0], Bin::Destroy);
    else
        DeleteSets(nullptr, place.logos, names, Bin::Destroy);
}

void PutArchive(const Place& place) {
    Put(place.root + "given.zip", ZipOf({{"Red/LOGO.SYS", "new LOGO.SYS"},
                                         {"Red/LOGOW.SYS", "new LOGOW.SYS"},
                                         {"Blue/LOGO.SYS", "newer LOGO.SYS"},
                                         {"New/LOGO.SYS", "new"}}));
}

void Import(const Place& place) {
    UnpackedSets sets(place.logos);
    sets.Unpack(place.root + "given.zip");
    for (std::size_t i = 0; i < sets.Sets().size(); ++i) sets.Take(i);
}

void PutOlderArchive(const Place& place) { Put(place.root + "given.zip", "older"); }

void ExpectTheOlderOrAWholeArchive(const Place& place) {
    const std::string bytes = Contents(place.root + "given.zip").value_or("");
    if (bytes == "older") return;
    const std::vector<std::uint8_t> file(bytes.begin(), bytes.end());
    const archive::Directory all = archive::ReadDirectory(file, platform::DosToUtf8);
    EXPECT_EQ(all.fault, archive::ArchiveFault::None);
    EXPECT_GE(all.entries.size(), 2u);
}

// Screens of sets.

Slots FilledSlots(const Place& place) {
    return {place.pictures + "one", place.pictures + "two", place.pictures + "three"};
}

void Update(const Place& place, SetKind kind) {
    Slots slots = FilledSlots(place);
    UpdateSet({place.logos, "Red"}, kind, slots, [&] { return place.pictures + "kept"; });
}

void SaveShared(const Place& place) {
    Slots slots = FilledSlots(place);
    SaveSharedScreens(place.logos, slots, [&] { return place.pictures + "kept"; });
}

void PutPictures(const Place& place) {
    const std::vector<std::uint8_t> indices(16 * 20, 1);
    const std::vector<std::uint8_t> palette(256 * 4, 7);
    for (const char* name : {"a.bmp", "b.bmp", "c.bmp", "d.bmp"}) {
        const auto bytes = bmp::ColormappedBmp(indices.data(), 16, 20, 256, palette.data());
        Put(place.pictures + name, {bytes.begin(), bytes.end()});
    }
}

void MakeSetsOfPictures(const Place& place, SetKind kind) {
    const std::string& folder = place.pictures;
    PictureSets sets(place.logos,
                     {folder + "a.bmp", folder + "b.bmp", folder + "c.bmp", folder + "d.bmp"}, kind,
                     compose::FramingKind::Fill);
    while (!sets.IsDone()) sets.Next();
}

// Start and end.

Settings StoredSettings(const Place& place) {
    Settings settings = ReadSettings(place.locations);
    settings.logoPath = place.logos;
    return settings;
}

void ForgetInstalledSet(const Place&) { Store("DefaultLogoSet", TextValue("")); }

void Close(const Place& place) {
    ClosingState state;
    state.companionWanted = true;
    state.settings = StoredSettings(place);
    WriteBackOnClose(place.locations, state);
}

void ExpectTheLogoFolderStored(const Place& place) {
    EXPECT_EQ(ReadSettings(place.locations).logoPath, place.logos);
}

void PutLinks(const Place& place) {
    Put(place.program + "Shufflet.lnk", "shufflet");
    Put(place.locations.startupFolder + "Rotaline.lnk", "rotaline");
}

void ExpectWholeLinks(const Place& place) {
    const std::string& startup = place.locations.startupFolder;
    for (const std::string& link : NamesIn(startup))
        EXPECT_EQ(Contents(startup + link), link == "Rotaline.lnk" ? "rotaline" : "shufflet");
}

// Companions.

void ChangeInstalled(const Place& place) {
    const auto from = LogoSet{place.logos, "Red"}.Screens();
    const auto to = InstalledScreenPaths(place.boot, place.windows);
    for (std::size_t i = 0; i < to.size(); ++i) companions::ReplaceScreen(from[i], to[i]);
}

}  // namespace

const std::vector<FileCommand>& FileCommands() {
    static const std::vector<FileCommand> commands = {
        {"set as default",
         Nothing,
         [](const Place& place) { Install(place, false); },
         {{}, true, kDeletedFirst},
         NextStart::OfVistrel,
         ExpectThatItCanBeTakenBack},
        {"set as default while synchronizing",
         Nothing,
         [](const Place& place) { Install(place, true); },
         {{}, true, kDeletedFirst},
         NextStart::OfVistrel,
         ExpectThatItCanBeTakenBack},
        {"undo install",
         [](const Place& place) { Install(place, false); },
         Undo,
         {},
         NextStart::OfVistrel,
         ExpectThatItCanBeTakenBack},
        {"rename",
         Nothing,
         [](const Place& place) { RenameSet({place.logos, "Red"}, "Scarlet"); },
         {}},
        {"convert",
         Nothing,
         [](const Place& place) { RenameSet({place.logos, "Red"}, "Red.SLS"); },
         {}},
        {"delete",
         Nothing,
         [](const Place& place) { Delete(place, {"Red"}); },
         {{"Red"}, false, kFilesGoOneByOne}},
        {"delete several",
         Nothing,
         [](const Place& place) { Delete(place, {"Blue", "Red"}); },
         {{"Blue", "Red"}, false, kFilesGoOneByOne}},
        {"duplicate", Nothing, [](const Place& place) { DuplicateSet({place.logos, "Red"}); }, {}},
        {"import", PutArchive, Import, {}},
        {"export",
         PutOlderArchive,
         [](const Place& place) {
             ExportSets(place.logos, {"Blue", "Red"}, place.root + "given.zip");
         },
         {},
         NextStart::OfVistrel,
         ExpectTheOlderOrAWholeArchive},
        {"create set",
         Nothing,
         [](const Place& place) {
             CreateSet({place.logos, "Fresh"}, SetKind::Complete, FilledSlots(place));
         },
         {{"Fresh"}, false, kWrittenStays}},
        {"update set",
         Nothing,
         [](const Place& place) { Update(place, SetKind::Complete); },
         {{"Red"}, false, kWrittenStays}},
        {"update set to startup-only",
         Nothing,
         [](const Place& place) { Update(place, SetKind::StartupOnly); },
         {{"Red"}, false, kWrittenStays}},
        {"save default screens", Nothing, SaveShared, {{""}, false, kWrittenStays}},
        {"mend, move colours",
         Nothing,
         [](const Place& place) { WriteOver(place.logos + "Red\\LOGO.SYS", {1, 2, 3}); },
         {}},
        {"make sets of pictures",
         PutPictures,
         [](const Place& place) { MakeSetsOfPictures(place, SetKind::StartupOnly); },
         {}},
        {"make sets of three pictures each",
         PutPictures,
         [](const Place& place) { MakeSetsOfPictures(place, SetKind::Complete); },
         {{}, false, kLeftOut, true}},
        {"first start",
         ForgetInstalledSet,
         [](const Place& place) { LoadSettings(place.locations); },
         {{"Original Logos"}, false, kNotCopied}},
        {"exit", Nothing, Close, {}, NextStart::OfVistrel, ExpectTheLogoFolderStored},
        {"start-up action",
         PutLinks,
         [](const Place& place) {
             ApplyStartUpAction(StartUpActionKind::Shufflet, place.program,
                                place.locations.startupFolder);
         },
         {},
         NextStart::OfVistrel,
         ExpectWholeLinks},
        {"Rotaline, Shufflet", Nothing, ChangeInstalled, {}, NextStart::OfWindows},
        {"Mirrorkin",
         Nothing,
         [](const Place& place) { companions::MirrorScreens(place.logos + "Red", place.windows); },
         {},
         NextStart::OfWindows},
    };
    return commands;
}

}  // namespace vistrel::test
