// The registry operations, against the real registry.
#include "core/mdl_registry.h"

#include <windows.h>

#include "platform/fault.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/held_objects.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

constexpr const char* kKey = "SOFTWARE\\Tarnwick\\Vistrel";
constexpr Hive kHive = Hive::LocalMachine;

TEST_F(Machine, CreateNewKeyMakesAnAbsentKeyAndLeavesOneThatIsThere) {
    EXPECT_FALSE(Stored("x"));
    EXPECT_EQ(CreateNewKey(kHive, kKey), 0);
    Store("x", TextValue("kept"));
    EXPECT_EQ(CreateNewKey(kHive, kKey), 0);
    EXPECT_EQ(Stored("x"), TextValue("kept"));
}

TEST_F(Machine, NoNulIsAddedToTextsThatAreStored) {
    CreateNewKey(kHive, kKey);
    EXPECT_EQ(SetKeyValue(kHive, kKey, "x", std::string("Blue"), kRegistryText), 0);
    EXPECT_EQ(Stored("x"), SavedText("Blue"));
    EXPECT_EQ(SetKeyValue(kHive, kKey, "x", std::string(), kRegistryText), 0);
    EXPECT_EQ(Stored("x"), SavedText(""));
}

TEST_F(Machine, NumbersAreStoredInFourBytes) {
    CreateNewKey(kHive, kKey);
    EXPECT_EQ(SetKeyValue(kHive, kKey, "x", std::uint32_t{0x01020304}, kRegistryNumber), 0);
    EXPECT_EQ(Stored("x"), (StoredValue{REG_DWORD, "\4\3\2\1"}));
    EXPECT_EQ(QueryValue(kHive, kKey, "x"), RegistryValue(std::uint32_t{0x01020304}));
}

TEST_F(Machine, OtherTypesWriteNothing) {
    CreateNewKey(kHive, kKey);
    EXPECT_EQ(SetKeyValue(kHive, kKey, "x", std::string("Blue"), REG_BINARY), -1);
    EXPECT_EQ(SetKeyValue(kHive, kKey, "x", std::string("Blue"), kRegistryNumber), -1);
    EXPECT_FALSE(Stored("x"));
}

TEST_F(Machine, AStoredNulStaysInTheTextThatIsRead) {
    Store("x", TextValueWithNul("Blue"));
    EXPECT_EQ(QueryValue(kHive, kKey, "x"), RegistryValue(std::string("Blue\0", 5)));
    Store("x", TextValue(std::string("a\0b\0\0c", 6)));
    EXPECT_EQ(QueryValue(kHive, kKey, "x"), RegistryValue(std::string("a\0b\0\0c", 6)));
}

TEST_F(Machine, LongTextsAndLettersOfTheCodePageComeBackAsTheyWere) {
    CreateNewKey(kHive, kKey);
    std::string text;
    while (text.size() < 4000) text += OddName() + " text ";
    EXPECT_EQ(SetKeyValue(kHive, kKey, "x", text, kRegistryText), 0);
    EXPECT_EQ(Stored("x"), SavedText(text));
    Store("x", TextValue(text));
    EXPECT_EQ(QueryValue(kHive, kKey, "x"), RegistryValue(text));
}

TEST_F(Machine, WhatIsNeitherTextNorNumberGivesStatusMinusOneAndNoValue) {
    Store("x", {REG_BINARY, "abc"});
    RegistryKey key;
    ASSERT_EQ(key.Open(kHive, kKey), 0);
    RegistryValue value = std::string("old");
    EXPECT_EQ(QueryValueEx(key, "x", value), -1);
    EXPECT_EQ(value, RegistryValue());
}

TEST_F(Machine, ANumberThatIsLongerThanFourBytesIsNotRead) {
    Store("x", {REG_DWORD, std::string(8, '\1')});
    RegistryKey key;
    ASSERT_EQ(key.Open(kHive, kKey), 0);
    RegistryValue value = std::string("old");
    EXPECT_EQ(QueryValueEx(key, "x", value), ERROR_MORE_DATA);
    EXPECT_EQ(value, RegistryValue());
}

TEST_F(Machine, AMissingValueOrKeyReadsAsNothing) {
    EXPECT_EQ(QueryValue(kHive, kKey, "x"), RegistryValue());
    EXPECT_NE(SetKeyValue(kHive, kKey, "x", std::string("Blue"), kRegistryText), 0);
    EXPECT_NE(DeleteValue(kHive, kKey, "x"), 0);
    CreateNewKey(kHive, kKey);
    RegistryKey key;
    ASSERT_EQ(key.Open(kHive, kKey), 0);
    RegistryValue value = std::string("old");
    EXPECT_EQ(QueryValueEx(key, "x", value), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(value, RegistryValue());
    EXPECT_EQ(DeleteValue(kHive, kKey, "x"), ERROR_FILE_NOT_FOUND);
}

TEST_F(Machine, DeleteValueTakesThatValueOnly) {
    Store("x", TextValue("1"));
    Store("y", TextValue("2"));
    EXPECT_EQ(DeleteValue(kHive, kKey, "x"), 0);
    EXPECT_FALSE(Stored("x"));
    EXPECT_EQ(Stored("y"), TextValue("2"));
}

TEST_F(Machine, TextOfWritesNumbersInDecimal) {
    EXPECT_EQ(TextOf(std::uint32_t{4000000000}), "4000000000");
    EXPECT_EQ(TextOf(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(TextOf({}), "");
}

TEST_F(Machine, RegistryOperationsLeaveNoHandleOpenWhetherTheyFailOrNot) {
    const auto all = [] {
        CreateNewKey(kHive, kKey);
        SetKeyValue(kHive, kKey, "x", std::string("Blue"), kRegistryText);
        QueryValue(kHive, kKey, "x");
        DeleteValue(kHive, kKey, "x");
    };
    all();
    const HeldObjects before = CountHeldObjects();
    WithEachOperationFailing([] {}, all,
                             [&](int) { EXPECT_FALSE(CountHeldObjects().AreMoreThan(before)); });
}

TEST_F(Machine, AnOpenKeyThatOpensAnotherClosesTheFirst) {
    CreateNewKey(kHive, kKey);
    RegistryKey key;
    key.Open(kHive, kKey);
    const HeldObjects before = CountHeldObjects();
    for (int i = 0; i < 10; ++i) ASSERT_EQ(key.Create(kHive, kKey), 0);
    RegistryKey other = std::move(key);
    key = std::move(other);
    EXPECT_FALSE(CountHeldObjects().AreMoreThan(before));
}

}  // namespace
}  // namespace vistrel::test
