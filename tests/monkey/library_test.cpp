// The monkey's judge, on changes that it must notice.
#include "tests/monkey/library.h"

#include <gtest/gtest.h>

namespace vistrel::test {
namespace {

const Library kLibrary = {{"Blue", {{"LOGO.SYS", "blue"}}}, {"Red", {{"LOGO.SYS", "red"}}}};

Library With(const std::string& name, const std::string& screen) {
    Library library = kLibrary;
    library[name] = {{"LOGO.SYS", screen}};
    return library;
}
Library Without(const std::string& name) {
    Library library = kLibrary;
    library.erase(name);
    return library;
}

TEST(UnaskedChanges, AreNoneWhereNothingChanged) {
    EXPECT_TRUE(UnaskedChanges(kLibrary, kLibrary, {}).empty());
}

TEST(UnaskedChanges, AreSetsThatAreGone) {
    EXPECT_EQ(UnaskedChanges(kLibrary, Without("Red"), {}),
              std::vector<std::string>{"gone: \"Red\""});
    EXPECT_TRUE(UnaskedChanges(kLibrary, Without("Red"), {.removed = 1}).empty());
    EXPECT_EQ(UnaskedChanges(kLibrary, {}, {.removed = 1}).size(), 1u);
}

TEST(UnaskedChanges, AreSetsThatAreNew) {
    EXPECT_EQ(UnaskedChanges(kLibrary, With("Green", "green"), {}),
              std::vector<std::string>{"new: \"Green\""});
    EXPECT_TRUE(UnaskedChanges(kLibrary, With("Green", "green"), {.added = 1}).empty());
}

TEST(UnaskedChanges, AreSetsThatHoldSomethingElse) {
    EXPECT_EQ(UnaskedChanges(kLibrary, With("Red", "half"), {.renamed = 1, .removed = 1}),
              std::vector<std::string>{"changed: \"Red\" !LOGO.SYS"});
    EXPECT_TRUE(UnaskedChanges(kLibrary, With("Red", "dark"), {.changed = true}).empty());
}

TEST(UnaskedChanges, AreNewNamesOfMoreThanWereRenamed) {
    Library renamed = Without("Red");
    renamed["Scarlet"] = kLibrary.at("Red");
    EXPECT_EQ(UnaskedChanges(kLibrary, renamed, {}),
              std::vector<std::string>{"1 sets have another name"});
    EXPECT_TRUE(UnaskedChanges(kLibrary, renamed, {.renamed = 1}).empty());
    renamed["Scarlet"]["LOGO.SYS"] = "half";
    EXPECT_EQ(UnaskedChanges(kLibrary, renamed, {.renamed = 1}).size(), 2u);
}

TEST(UnaskedInstalls, AreScreensOfNoSetAndThoseThatNobodyInstalled) {
    const Files before{{"LOGO.SYS", "old"}};
    const Permits installed{.installed = true};
    EXPECT_TRUE(UnaskedInstalls(before, before, {&kLibrary}, {}).empty());
    EXPECT_TRUE(UnaskedInstalls(before, {{"LOGO.SYS", "red"}}, {&kLibrary}, installed).empty());
    EXPECT_TRUE(UnaskedInstalls(before, {{"LOGO.SYS", "-"}}, {&kLibrary}, installed).empty());
    EXPECT_EQ(UnaskedInstalls(before, {{"LOGO.SYS", "red"}}, {&kLibrary}, {}).size(), 1u);
    EXPECT_EQ(UnaskedInstalls(before, {{"LOGO.SYS", "half"}}, {&kLibrary}, installed).size(), 1u);
}

}  // namespace
}  // namespace vistrel::test
