#include "platform/win32/Win32Registry.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <set>

namespace registry_tests {

using platform::OpenKey;
using platform::Registry;
using platform::Win32Registry;

constexpr const char16_t* path = u"Software\\K73053 tests\\Clé";
constexpr const wchar_t* top = L"Software\\K73053 tests";
constexpr const wchar_t* whole = L"Software\\K73053 tests\\Cl\u00E9";

class RegistryTest : public testing::Test {
protected:
    void SetUp() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, top);
        ASSERT_EQ(registry_.create(path, raw_), Registry::success);
    }
    void TearDown() override {
        registry_.close(raw_);
        RegDeleteTreeW(HKEY_CURRENT_USER, top);
    }

    static void store(const wchar_t* name, DWORD type, const void* data, DWORD size) {
        EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, whole, name, type, data, size), ERROR_SUCCESS);
    }

    Win32Registry registry_;
    Registry::Key raw_{};
};

TEST_F(RegistryTest, StoresTextsInTheSizeAskedForAndANulThatFollows) {
    const OpenKey key(registry_, path, Registry::queryAndSet);
    ASSERT_TRUE(key.isOpen());
    const std::u16string folder = u"C:\\Élève\\";
    const struct {
        const wchar_t* name;
        const char16_t* nameInside;
        std::size_t length;
        std::u16string read;
    } cases[] = {
        {L"Default", u"Default", folder.size(), folder + u'\0'},
        {L"Terminated", u"Terminated", folder.size() + 1, folder + u'\0'},
        {L"PictureDir", u"PictureDir", 0, u""},
        {L"Part", u"Part", 2, u"C:"},
        {L"TooLong", u"TooLong", folder.size() + 50, folder + u'\0'},
        {L"", u"", folder.size(), folder + u'\0'},
    };
    for (const auto& [name, nameInside, length, read] : cases) {
        EXPECT_TRUE(key.set(nameInside, folder, length));
        EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, whole, name, RRF_RT_REG_SZ, nullptr, nullptr, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(key.query(nameInside), read);
    }
    EXPECT_EQ(key.query(u"Missing"), std::nullopt);
}

TEST_F(RegistryTest, SaysWhatALongerValueNeeds) {
    const OpenKey key(registry_, path, Registry::queryAndSet);
    const std::u16string text = std::u16string(300, u'é') + u'\0';
    ASSERT_TRUE(key.set(u"Long", text, text.size()));
    EXPECT_EQ(key.query(u"Long"), text) << "read again whole";
    std::u16string data = u"unchanged";
    for (const std::size_t room : {std::size_t{0}, std::size_t{255}, std::size_t{300}}) {
        std::size_t length = room;
        EXPECT_EQ(registry_.query(raw_, u"Long", length, data), Registry::moreData);
        EXPECT_EQ(length, 301U);
        EXPECT_EQ(data, u"unchanged");
    }
    std::size_t length = 301;
    EXPECT_EQ(registry_.query(raw_, u"Long", length, data), Registry::success);
    EXPECT_EQ(data, text);
    EXPECT_EQ(registry_.query(raw_, u"Missing", length, data), Registry::fileNotFound);
}

TEST_F(RegistryTest, ReadsTextsOnly) {
    const DWORD number = 5;
    store(L"Number", REG_DWORD, &number, sizeof(number));
    store(L"Odd", REG_SZ, L"ab", 3);
    store(L"Expandable", REG_EXPAND_SZ, L"%APPDATA%", 20);
    const OpenKey key(registry_, path, Registry::read);
    EXPECT_EQ(key.query(u"Number"), std::nullopt);
    EXPECT_EQ(key.query(u"Odd"), u"a") << "half a character is none";
    EXPECT_EQ(key.query(u"Expandable"), std::u16string(u"%APPDATA%\0", 10));
    std::size_t length = 100;
    std::u16string data;
    EXPECT_EQ(registry_.query(raw_, u"Number", length, data), Win32Registry::unsupportedType);
}

TEST_F(RegistryTest, EnumeratesNamesUntilThereAreNone) {
    const OpenKey key(registry_, path, Registry::read | Registry::queryAndSet);
    std::u16string name;
    EXPECT_FALSE(key.enumerate(0, name));
    ASSERT_TRUE(key.set(u"UserTemplates", u"x", 1));
    EXPECT_EQ(registry_.enumerate(raw_, 0, 1, name), Registry::moreData) << "a name that does not fit is not cut";
    ASSERT_TRUE(key.set(u"", u"x", 1));
    std::set<std::u16string> names;
    for (std::uint32_t i = 0; key.enumerate(i, name); ++i) {
        names.insert(name);
    }
    EXPECT_EQ(names, (std::set<std::u16string>{u"", u"UserTemplates"}));
    EXPECT_EQ(registry_.enumerate(raw_, 2, 2000, name), Registry::noMoreItems);
}

TEST_F(RegistryTest, OpensWithTheAccessAskedFor) {
    EXPECT_FALSE(OpenKey(registry_, u"Software\\K73053 tests\\Absente", Registry::read).isOpen());
    const OpenKey readOnly(registry_, path, KEY_QUERY_VALUE);
    EXPECT_TRUE(readOnly.isOpen());
    EXPECT_FALSE(readOnly.set(u"Value", u"x", 1));
    const OpenKey writeOnly(registry_, path, KEY_SET_VALUE);
    EXPECT_TRUE(writeOnly.set(u"Value", u"x", 1));
    EXPECT_EQ(writeOnly.query(u"Value"), std::nullopt);
    Registry::Key again{};
    EXPECT_EQ(registry_.create(path, again), Registry::success) << "a key that is there is opened";
    EXPECT_EQ(readOnly.query(u"Value"), std::u16string(u"x\0", 2));
    registry_.close(again);
}

} // namespace registry_tests
