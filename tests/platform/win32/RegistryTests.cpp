#include "platform/win32/Win32Registry.h"

#include <gtest/gtest.h>
#include <windows.h>

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
        TearDown();
        Registry::Key key{};
        ASSERT_EQ(registry_.create(path, key), Registry::success);
        registry_.close(key);
    }
    void TearDown() override {
        RegDeleteKeyW(HKEY_CURRENT_USER, whole);
        RegDeleteKeyW(HKEY_CURRENT_USER, top);
    }

    /// Type and bytes of a value as the system has it.
    struct Stored {
        DWORD type = REG_NONE;
        DWORD size = 0;
    };
    static Stored stored(const wchar_t* name) {
        Stored result;
        HKEY key = nullptr;
        RegOpenKeyExW(HKEY_CURRENT_USER, whole, 0, KEY_READ, &key);
        EXPECT_EQ(RegQueryValueExW(key, name, nullptr, &result.type, nullptr, &result.size), ERROR_SUCCESS);
        RegCloseKey(key);
        return result;
    }
    static void store(const wchar_t* name, DWORD type, const void* data, DWORD size) {
        HKEY key = nullptr;
        ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, whole, 0, KEY_SET_VALUE, &key), ERROR_SUCCESS);
        EXPECT_EQ(RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size), ERROR_SUCCESS);
        RegCloseKey(key);
    }

    Win32Registry registry_;
};

TEST_F(RegistryTest, StoresTextsInTheSizeAskedForAndANulThatFollows) {
    const OpenKey key(registry_, path, Registry::queryAndSet);
    ASSERT_TRUE(key.isOpen());
    const std::u16string folder = u"C:\\Élève\\";
    const struct {
        const wchar_t* name;
        const char16_t* nameInside;
        std::size_t length;
        DWORD bytes;
        std::u16string read;
    } cases[] = {
        {L"Default", u"Default", folder.size(), 20, folder + u'\0'},
        {L"Terminated", u"Terminated", folder.size() + 1, 20, folder + u'\0'},
        {L"PictureDir", u"PictureDir", 0, 0, u""},
        {L"Part", u"Part", 2, 4, u"C:"},
        {L"TooLong", u"TooLong", folder.size() + 50, 20, folder + u'\0'},
        {L"", u"", folder.size(), 20, folder + u'\0'},
    };
    for (const auto& [name, nameInside, length, bytes, read] : cases) {
        EXPECT_TRUE(key.set(nameInside, folder, length));
        EXPECT_EQ(stored(name).type, static_cast<DWORD>(REG_SZ));
        EXPECT_EQ(stored(name).size, bytes) << read.size();
        EXPECT_EQ(key.query(nameInside), read);
    }
    EXPECT_TRUE(key.set(u"Empty", u"", 0));
    EXPECT_EQ(stored(L"Empty").size, 0U);
    EXPECT_EQ(key.query(u"Missing"), std::nullopt);
}

TEST_F(RegistryTest, SaysWhatALongerValueNeeds) {
    const OpenKey key(registry_, path, Registry::queryAndSet);
    const std::u16string text(300, u'é');
    ASSERT_TRUE(key.set(u"Long", text, text.size()));
    EXPECT_EQ(key.query(u"Long"), text) << "read again whole";

    Registry::Key raw{};
    ASSERT_EQ(registry_.open(path, Registry::read, raw), Registry::success);
    for (const std::size_t room : {std::size_t{0}, std::size_t{255}, std::size_t{299}}) {
        std::size_t length = room;
        std::u16string data = u"unchanged";
        EXPECT_EQ(registry_.query(raw, u"Long", length, data), Registry::moreData);
        EXPECT_EQ(length, 300U);
        EXPECT_EQ(data, u"unchanged");
    }
    std::size_t length = 300;
    std::u16string data;
    EXPECT_EQ(registry_.query(raw, u"Long", length, data), Registry::success);
    EXPECT_EQ(data, text);
    EXPECT_EQ(registry_.query(raw, u"Missing", length, data), Registry::fileNotFound);
    registry_.close(raw);
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
    Registry::Key raw{};
    ASSERT_EQ(registry_.open(path, Registry::read, raw), Registry::success);
    EXPECT_EQ(registry_.query(raw, u"Number", length, data), Win32Registry::unsupportedType);
    registry_.close(raw);
}

TEST_F(RegistryTest, EnumeratesNamesUntilThereAreNone) {
    const OpenKey key(registry_, path, Registry::read | Registry::queryAndSet);
    std::u16string name;
    EXPECT_FALSE(key.enumerate(0, name));
    ASSERT_TRUE(key.set(u"UserTemplates", u"x", 1));
    ASSERT_TRUE(key.set(u"", u"x", 1));
    std::vector<std::u16string> names;
    for (std::uint32_t i = 0; key.enumerate(i, name); ++i) {
        names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::u16string>{u"", u"UserTemplates"}));

    Registry::Key raw{};
    ASSERT_EQ(registry_.open(path, Registry::read, raw), Registry::success);
    EXPECT_EQ(registry_.enumerate(raw, 2, 2000, name), Registry::noMoreItems);
    const bool refused = registry_.enumerate(raw, 0, 1, name) == Registry::moreData ||
                         registry_.enumerate(raw, 1, 1, name) == Registry::moreData;
    EXPECT_TRUE(refused) << "a name that does not fit is not cut";
    registry_.close(raw);
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
    EXPECT_EQ(OpenKey(registry_, path, Registry::read).query(u"Value"), u"x");
    registry_.close(again);
}

} // namespace registry_tests
