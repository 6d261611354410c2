// Which sets are found, and in which order.
#include "core/found_sets.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <map>
#include <stdexcept>

namespace vistrel::test {

using namespace core;

namespace {

using Names = std::vector<std::string>;

const Names kSets = {"Night Sky", "city lights", "Moon", "\xc4pfel", "City 2.SLS", "Zebra"};

Names Sorted(SetColumn column, bool backwards,
             const std::map<std::string, SetDetails>& details = {}) {
    Names sets = kSets;
    SortSets(sets, {column, backwards},
             [&](const auto& name) -> auto& { return details.at(name); });
    return sets;
}

TEST(FoundSets, AreThoseWhoseNamesHoldTheTextInAnyCaseInTheFoldersOrder) {
    EXPECT_EQ(FoundSets(kSets, ""), kSets);
    EXPECT_EQ(FoundSets(kSets, "CITY"), (Names{"city lights", "City 2.SLS"}));
    EXPECT_EQ(FoundSets(kSets, "i"), (Names{"Night Sky", "city lights", "City 2.SLS"}));
    EXPECT_EQ(FoundSets(kSets, "sls"), (Names{"City 2.SLS"}));
    EXPECT_EQ(FoundSets(kSets, "oon"), (Names{"Moon"}));
    EXPECT_EQ(FoundSets(kSets, "Moons"), Names{});
    if (GetACP() == 1252) {
        EXPECT_EQ(FoundSets(kSets, "\xe4PF"), (Names{"\xc4pfel"}));
    }
}

TEST(FoundSets, AreNotFoundByHalfACharacter) {
    // Where characters may be two bytes long, this one's second byte is an "A".
    const Names sets = {"\x83\x41"};
    EXPECT_EQ(FoundSets(sets, "A").empty(), IsDBCSLeadByte(0x83) != 0);
}

TEST(FoundSets, AreSortedByNameAsTheSystemDoesOrBackwards) {
    const Names sorted = Sorted(SetColumn::Name, false);
    const Names latin = {"\xc4pfel", "City 2.SLS", "city lights", "Moon", "Night Sky", "Zebra"};
    // The same byte is a letter of another script there, which comes behind these.
    const Names japanese = {"City 2.SLS", "city lights", "Moon", "Night Sky", "Zebra", "\xc4pfel"};
    EXPECT_EQ(sorted, GetACP() == 932 ? japanese : latin);
    EXPECT_EQ(Sorted(SetColumn::Name, true), Names(sorted.rbegin(), sorted.rend()));
}

TEST(FoundSets, OfOneKindStayInTheFoldersOrder) {
    EXPECT_EQ(Sorted(SetColumn::Kind, false),
              (Names{"Night Sky", "city lights", "Moon", "\xc4pfel", "Zebra", "City 2.SLS"}));
    EXPECT_EQ(Sorted(SetColumn::Kind, true),
              (Names{"City 2.SLS", "Night Sky", "city lights", "Moon", "\xc4pfel", "Zebra"}));
}

TEST(FoundSets, AreSortedByEachOfTheirDetails) {
    std::map<std::string, SetDetails> details;
    const std::uint64_t later = std::uint64_t{1} << 40;  // its lower half is 0
    details["Night Sky"] = {{true, true, true}, 3, 7, 900};
    details["city lights"] = {{true, false, false}, 0, later, 100};
    details["Moon"] = {{false, true, true}, 250, 5, 300};
    details["\xc4pfel"] = {{true, false, false}, 0, 0, 100};
    details["City 2.SLS"] = {{true, false, false}, 20, 6, 101};
    details["Zebra"] = {};
    const auto sorted = [&](SetColumn column, bool backwards) {
        return Sorted(column, backwards, details);
    };
    EXPECT_EQ(sorted(SetColumn::Screens, false),
              (Names{"Zebra", "city lights", "\xc4pfel", "City 2.SLS", "Moon", "Night Sky"}));
    EXPECT_EQ(sorted(SetColumn::MovingColors, true),
              (Names{"Moon", "City 2.SLS", "Night Sky", "city lights", "\xc4pfel", "Zebra"}));
    EXPECT_EQ(sorted(SetColumn::Date, false),
              (Names{"\xc4pfel", "Zebra", "Moon", "City 2.SLS", "Night Sky", "city lights"}));
    EXPECT_EQ(sorted(SetColumn::Size, false),
              (Names{"Zebra", "city lights", "\xc4pfel", "City 2.SLS", "Moon", "Night Sky"}));
}

TEST(FoundSets, AreNotReadForAnOrderThatDoesNotNeedIt) {
    Names sets = kSets;
    const auto none = [](const std::string& name) -> const SetDetails& {
        throw std::out_of_range(name);
    };
    EXPECT_NO_THROW(SortSets(sets, {}, none));
    EXPECT_EQ(sets, kSets);
    for (const SetColumn column : {SetColumn::Name, SetColumn::Kind}) {
        EXPECT_FALSE(NeedsDetails({column, true}));
        EXPECT_NO_THROW(SortSets(sets, {column, true}, none));
    }
    for (const SetColumn column :
         {SetColumn::Screens, SetColumn::MovingColors, SetColumn::Date, SetColumn::Size})
        EXPECT_TRUE(NeedsDetails({column, false}));
    EXPECT_FALSE(NeedsDetails({}));
}

TEST(FoundSets, TheOrderOfAColumnGoesRoundAndAnotherColumnBeginsForwards) {
    const SetOrder folder;
    const SetOrder byName{SetColumn::Name, false};
    const SetOrder byNameBackwards{SetColumn::Name, true};
    EXPECT_EQ(NextOrder(folder, SetColumn::Name), byName);
    EXPECT_EQ(NextOrder(byName, SetColumn::Name), byNameBackwards);
    EXPECT_EQ(NextOrder(byNameBackwards, SetColumn::Name), folder);
    EXPECT_EQ(NextOrder(byNameBackwards, SetColumn::Date), (SetOrder{SetColumn::Date, false}));
}

}  // namespace
}  // namespace vistrel::test
