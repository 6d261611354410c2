// The help that ships: whether a user finds everything, and the program every number.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "help/context_numbers.h"
#include "resources/version.h"
#include "tests/help/compile.h"

namespace vistrel::help_test {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

const ReadHelp& VistrelHelp() {
    static const ReadHelp help = [] {
        const fs::path folder = HELP_FOLDER;
        std::vector<fs::path> paths;
        for (const auto& entry : fs::directory_iterator(folder / "topics"))
            paths.push_back(entry.path());
        std::sort(paths.begin(), paths.end());
        std::vector<help::SourceFile> sources;
        for (const fs::path& path : paths) sources.push_back({path.filename(), *ReadFile(path)});
        help::SourceErrors errors;
        const auto load = [&](const std::string& name) {
            return ReadFile(folder / "pictures" / name);
        };
        const std::string file = help::CompileHelp(sources, load, errors);
        for (const help::SourceError& error : errors)
            ADD_FAILURE() << error.place.file << ":" << error.place.line << ": " << error.message;
        return errors.empty() ? ReadHelpFile(file) : ReadHelp();
    }();
    return help;
}

bool IsPopup(const ReadTopic& topic) { return topic.band.empty(); }

// The numbers that users' windows ask for, written down here once more: a number that is changed on
// one side only would show another control's help.
const std::set<std::uint32_t> kTopicNumbers = {30, 90, 91};
const std::set<std::uint32_t> kPopupNumbers = {
    32,  33,  34,  35,  36,  37,  38,  39,  40,  41,  42,  43,  44,  54,  55,  60,  61,
    62,  63,  64,  65,  66,  67,  68,  69,  70,  71,  72,  73,  74,  75,  76,  77,  84,
    85,  86,  87,  88,  89,  92,  93,  94,  95,  96,  100, 101, 102, 103, 104, 105, 106,
    107, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123,
    124, 130, 131, 132, 133, 134, 135, 140, 141, 142, 143, 144, 145, 146, 147, 148, 149,
    150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161};

// Every number that context_numbers.h gives to something: those behind a '='.
std::set<std::uint32_t> NumbersOfTheProgram() {
    std::istringstream header(*ReadFile(fs::path(HELP_FOLDER) / "context_numbers.h"));
    std::set<std::uint32_t> numbers;
    for (std::string line; std::getline(header, line);) {
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos) continue;
        std::string values = line.substr(equals + 1);
        std::replace_if(
            values.begin(), values.end(), [](char c) { return c < '0' || c > '9'; }, ' ');
        std::istringstream stream(values);
        for (std::uint32_t number; stream >> number;) numbers.insert(number);
    }
    return numbers;
}

TEST(VistrelHelp, IsThatOfThisVersion) {
    const auto source = ReadFile(fs::path(HELP_FOLDER) / "topics" / "00_contents.txt");
    EXPECT_THAT(*source,
                testing::HasSubstr("@copyright Help for Vistrel 98, version " VERSION_LONG "\n"));
}

TEST(VistrelHelp, StartsWithItsContents) {
    const ReadHelp& help = VistrelHelp();
    EXPECT_EQ(help.title, "Vistrel Help");
    EXPECT_EQ(help.caption, "Vistrel Help");
    ASSERT_FALSE(help.topics.empty());
    EXPECT_EQ(help.TopicAt(help.contents), &help.topics[0]);
}

TEST(VistrelHelp, NumberThirtyIsTheTutorial) {
    const ReadTopic* tutorial = VistrelHelp().TopicOfNumber(help_number::Tutorial);
    ASSERT_NE(tutorial, nullptr);
    EXPECT_EQ(help_number::Tutorial, 30u);
    EXPECT_EQ(tutorial->title, "Tutorial: your first logo set");
    EXPECT_FALSE(IsPopup(*tutorial));
}

TEST(VistrelHelp, HasTheNumbersThatTheProgramAsksForAndNoOther) {
    std::set<std::uint32_t> topics, popups;
    const ReadHelp& help = VistrelHelp();
    for (const auto& [number, offset] : help.numbers)
        (IsPopup(*help.TopicAt(offset)) ? popups : topics).insert(number);
    EXPECT_EQ(topics, kTopicNumbers);
    EXPECT_EQ(popups, kPopupNumbers);
    std::set<std::uint32_t> all = kTopicNumbers;
    all.insert(kPopupNumbers.begin(), kPopupNumbers.end());
    EXPECT_EQ(NumbersOfTheProgram(), all);
}

TEST(VistrelHelp, HasTheTopicsOfWindowsWithoutControlsToAskAbout) {
    EXPECT_EQ(VistrelHelp().TopicOfNumber(help_number::AboutBox)->title,
              "About Vistrel and bug reports");
    EXPECT_EQ(VistrelHelp().TopicOfNumber(help_number::ActualSize)->title, "Clicking on a picture");
}

struct ControlTitle {
    unsigned long number;
    const char* title;

    friend void PrintTo(const ControlTitle& control, std::ostream* out) { *out << control.number; }
};

class VistrelHelpOfControl : public testing::TestWithParam<ControlTitle> {};

TEST_P(VistrelHelpOfControl, IsAboutThatControl) {
    const ReadTopic* topic = VistrelHelp().TopicOfNumber(GetParam().number);
    ASSERT_NE(topic, nullptr);
    EXPECT_EQ(topic->title, GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(
    Preferences, VistrelHelpOfControl,
    testing::Values(
        ControlTitle{32, "Show startup logo"}, ControlTitle{33, "Show splash screen at startup"},
        ControlTitle{34, "Synchronize logos"}, ControlTitle{35, "Put the startup logo in"},
        ControlTitle{36, "Logo folder"}, ControlTitle{37, "Double click on logo set"},
        ControlTitle{38, "Delete logosets in the Recycle Bin"},
        ControlTitle{39, "Confirm logo sets deletion"},
        ControlTitle{40, "Confirm logo type change"},
        ControlTitle{41, "Show it in its actual size"}, ControlTitle{42, "Open Paint"},
        ControlTitle{43, "Open program"}, ControlTitle{44, "Path of the program"},
        ControlTitle{54, "Logo sequential change"}, ControlTitle{55, "Logo random change"},
        ControlTitle{help_number::RotationList, "Sets of the rotation"},
        ControlTitle{help_number::BtnAllSets, "All and None"}));

INSTANTIATE_TEST_SUITE_P(
    OtherWindows, VistrelHelpOfControl,
    testing::Values(ControlTitle{help_number::LogoList, "Folders and pictures"},
                    ControlTitle{help_number::ImgPreview[2], "Slot of the shutdown screen"},
                    ControlTitle{help_number::OptDefShut, "Default wait/shutdown screens"},
                    ControlTitle{help_number::CloseButton, "Finish"},
                    ControlTitle{help_number::AdjustButton, "Adjust"},
                    ControlTitle{help_number::OptFraming[2], "Fit"},
                    ControlTitle{help_number::LightBar[3], "Saturation"},
                    ControlTitle{help_number::AlignKind, "Align"},
                    ControlTitle{help_number::ManyClose, "Cancel and Close"},
                    ControlTitle{help_number::DefaultLogo, "Default logo set"},
                    ControlTitle{help_number::LogoType, "Type of the set"},
                    ControlTitle{help_number::NumLogo, "Number of sets"},
                    ControlTitle{help_number::LblFaults, "What is wrong with a screen"},
                    ControlTitle{help_number::FindBox, "Find"},
                    ControlTitle{help_number::StatusLine, "Status line"},
                    ControlTitle{help_number::BtnStopLooking, "Cancel in the status line"},
                    ControlTitle{help_number::WorkBar, "Progress"},
                    ControlTitle{help_number::WorkCancel, "Cancel"}));

TEST(VistrelHelp, EveryTopicIsReachedFromTheContentsOrByANumber) {
    const ReadHelp& help = VistrelHelp();
    std::set<const ReadTopic*> reached;
    std::vector<const ReadTopic*> toVisit = {&help.topics.at(0)};
    for (const auto& [number, offset] : help.numbers) toVisit.push_back(help.TopicAt(offset));
    while (!toVisit.empty()) {
        const ReadTopic* topic = toVisit.back();
        toVisit.pop_back();
        if (!reached.insert(topic).second) continue;
        for (const ReadParagraph& paragraph : topic->paragraphs)
            for (const ReadLink& link : paragraph.links) toVisit.push_back(help.TopicOfLink(link));
    }
    for (const ReadTopic& topic : help.topics)
        EXPECT_TRUE(reached.contains(&topic)) << topic.title << " is not reached";
}

TEST(VistrelHelp, BrowsingFromTheContentsPassesEveryTopicThatIsNoPopup) {
    const ReadHelp& help = VistrelHelp();
    std::size_t topics = 0, passed = 1;
    for (const ReadTopic& topic : help.topics) topics += IsPopup(topic) ? 0 : 1;
    const ReadTopic* topic = &help.topics.at(0);
    while (topic->browseForward != kNowhere && passed <= topics) {
        const ReadTopic* next = help.TopicAt(topic->browseForward);
        EXPECT_EQ(next->browseBack, topic->offset);
        topic = next;
        ++passed;
    }
    EXPECT_EQ(passed, topics);
}

std::string TextOf(const std::string& title) {
    std::string text;
    for (const ReadTopic& topic : VistrelHelp().topics)
        if (topic.title == title)
            for (const ReadParagraph& paragraph : topic.paragraphs) text += paragraph.text + "\n";
    return text;
}

bool Tells(const std::string& title, const std::string& words) {
    return TextOf(title).find(words) != std::string::npos;
}

TEST(VistrelHelp, TellsWhatSurprisesAUser) {
    EXPECT_TRUE(Tells("Deleting a set", "It shows up again after a Refresh"));
    EXPECT_TRUE(Tells("Deleting a set", "Into the Recycle Bin such a folder goes with the files"));
    EXPECT_TRUE(Tells("The companion programs",
                      "starting and closing Vistrel once without putting a set in place ends it"));
    EXPECT_TRUE(Tells("Troubleshooting", "Cannot rename folder. The folder already exists or has"));
    EXPECT_TRUE(Tells("Finding pictures", "already exists or the name is not valid."));
    EXPECT_TRUE(Tells("The main window", "StartUp logo in"));
    EXPECT_TRUE(Tells("Tutorial: your first logo set", "The first place is often empty"));
    EXPECT_TRUE(Tells("Removing Vistrel", "Add/Remove Programs"));
    EXPECT_TRUE(Tells("What Vistrel does", "MSDOS.SYS"));
    EXPECT_TRUE(Tells("Adjusting a picture", "moved about it becomes a still one"));
    EXPECT_TRUE(Tells("Sets of many pictures", "sets that are made stay"));
    EXPECT_TRUE(Tells("How do I get the moving bar onto my own picture?", "It runs already."));
    EXPECT_TRUE(Tells("Why do the colours of my screen flash?", "uses all 256 colours"));
}

TEST(VistrelHelp, EveryTopicThatIsNoPopupHasAKeyword) {
    const ReadHelp& help = VistrelHelp();
    std::set<std::uint32_t> found;
    for (const auto& [keyword, offset] : help.keywords) found.insert(offset);
    for (const ReadTopic& topic : help.topics)
        EXPECT_TRUE(IsPopup(topic) || found.contains(topic.offset)) << topic.title;
}

TEST(VistrelHelp, PopupsAreShortEnoughForAWindowWithoutScrollBar) {
    for (const ReadTopic& topic : VistrelHelp().topics) {
        if (!IsPopup(topic)) continue;
        EXPECT_EQ(topic.paragraphs.size(), 1u) << topic.title;
        EXPECT_LT(topic.paragraphs[0].text.size(), 320u) << topic.title;
    }
}

}  // namespace
}  // namespace vistrel::help_test
