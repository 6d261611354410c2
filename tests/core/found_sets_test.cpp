// Which sets are found, and in which order.
#include "core/found_sets.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace vistrel::test {

using namespace core;

namespace {

using Names = std::vector<std::string>;

const Names kSets = {"Night Sky", "city lights", "Moon", "\xc4pfel", "City 2.SLS", "Zebra"};

TEST(FoundSets, AreThoseWhoseNamesHoldTheTextInAnyCaseInTheFoldersOrder) {
    EXPECT_EQ(FoundSets(kSets, "", SetOrder::Folder), kSets);
    EXPECT_EQ(FoundSets(kSets, "CITY", SetOrder::Folder), (Names{"city lights", "City 2.SLS"}));
    EXPECT_EQ(FoundSets(kSets, "i", SetOrder::Folder),
              (Names{"Night Sky", "city lights", "City 2.SLS"}));
    EXPECT_EQ(FoundSets(kSets, "sls", SetOrder::Folder), (Names{"City 2.SLS"}));
    EXPECT_EQ(FoundSets(kSets, "oon", SetOrder::Folder), (Names{"Moon"}));
    EXPECT_EQ(FoundSets(kSets, "Moons", SetOrder::Folder), Names{});
    if (GetACP() == 1252) {
        EXPECT_EQ(FoundSets(kSets, "\xe4PF", SetOrder::Folder), (Names{"\xc4pfel"}));
    }
}

TEST(FoundSets, AreNotFoundByHalfACharacter) {
    // Where characters may be two bytes long, this one's second byte is an "A".
    const Names sets = {"\x83\x41"};
    EXPECT_EQ(FoundSets(sets, "A", SetOrder::Folder).empty(), IsDBCSLeadByte(0x83) != 0);
}

TEST(FoundSets, AreSortedByNameAsTheSystemDoesOrBackwards) {
    const Names sorted = FoundSets(kSets, "", SetOrder::Name);
    const Names latin = {"\xc4pfel", "City 2.SLS", "city lights", "Moon", "Night Sky", "Zebra"};
    // The same byte is a letter of another script there, which comes behind these.
    const Names japanese = {"City 2.SLS", "city lights", "Moon", "Night Sky", "Zebra", "\xc4pfel"};
    EXPECT_EQ(sorted, GetACP() == 932 ? japanese : latin);
    EXPECT_EQ(FoundSets(kSets, "", SetOrder::NameBackwards), Names(sorted.rbegin(), sorted.rend()));
}

TEST(FoundSets, TheOrderGoesRound) {
    EXPECT_EQ(NextOrder(SetOrder::Folder), SetOrder::Name);
    EXPECT_EQ(NextOrder(SetOrder::Name), SetOrder::NameBackwards);
    EXPECT_EQ(NextOrder(SetOrder::NameBackwards), SetOrder::Folder);
}

}  // namespace
}  // namespace vistrel::test
