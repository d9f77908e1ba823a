#include "simulator/system/EmbeddedRegistry.h"

#include <gtest/gtest.h>

namespace embedded_registry_tests {

using platform::OpenKey;
using platform::Registry;
using simulator::EmbeddedRegistry;
using namespace std::string_view_literals;

constexpr std::u16string_view path = u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";

TEST(EmbeddedRegistry, StoresTheCharactersCountedAndANulThatFollows) {
    struct Case {
        std::u16string_view data;
        std::size_t length;
        std::u16string_view stored;
    };
    EmbeddedRegistry registry;
    registry.setText(path, u"Default", u"avant");
    const OpenKey key(registry, path, Registry::queryAndSet);
    for (const auto& [data, length, stored] : std::initializer_list<Case>{
             {u"C:\\Dossier", 10, u"C:\\Dossier\0"sv},
             {u"C:\\Dossier", 11, u"C:\\Dossier\0"sv},
             {u"C:\\Dossier", 3, u"C:\\"sv},
             {u"C:\\Dossier", 0, u""sv},
             {u"", 1, u"\0"sv},
         }) {
        EXPECT_TRUE(key.set(u"DEFAULT", data, length));
        EXPECT_EQ(key.query(u"default"), stored);
    }
    EXPECT_EQ(registry.text(path, u"Default"), u"");
}

TEST(EmbeddedRegistry, ReadsIntoBuffersOfAnySize) {
    EmbeddedRegistry registry;
    registry.setText(path, u"Default", std::u16string(400, u'x'));
    Registry::Key key = Registry::Key::None;
    ASSERT_EQ(registry.open(path, Registry::read, key), Registry::success);
    std::size_t length = 255;
    std::u16string data = u"inchangé";
    EXPECT_EQ(registry.query(key, u"Default", length, data), Registry::moreData);
    EXPECT_EQ(length, 401U);
    EXPECT_EQ(data, u"inchangé");
    EXPECT_EQ(registry.query(key, u"Default", length, data), Registry::success);
    EXPECT_EQ(data.size(), 401U);
    EXPECT_EQ(registry.query(key, u"Absent", length, data), Registry::fileNotFound);
    registry.close(key);
    EXPECT_EQ(registry.query(key, u"Default", length, data), EmbeddedRegistry::invalidHandle);
}

TEST(EmbeddedRegistry, GrantsAccessKeyByKeyAndCountsHandles) {
    EmbeddedRegistry registry;
    registry.setText(path, u"Default", u"x");
    registry.deny(path, true);
    Registry::Key key = Registry::Key::None;
    EXPECT_EQ(registry.open(path, Registry::read, key), Registry::accessDenied);
    EXPECT_EQ(registry.create(path, key), Registry::accessDenied);
    EXPECT_EQ(registry.open(u"SOFTWARE\\Absent", Registry::read, key), Registry::fileNotFound);
    EXPECT_EQ(registry.openHandles(), 0U);

    registry.deny(path, false);
    {
        const OpenKey readable(registry, u"software\\MICROSOFT\\Office\\11.0\\PowerPoint\\recentfolderlist\\",
                               Registry::read);
        const OpenKey parent(registry, u"SOFTWARE\\Microsoft\\Office", Registry::queryAndSet);
        EXPECT_TRUE(readable.isOpen());
        EXPECT_TRUE(parent.isOpen());
        EXPECT_FALSE(readable.set(u"Default", u"y", 1));
        EXPECT_EQ(registry.openHandles(), 2U);
    }
    EXPECT_EQ(registry.openHandles(), 0U);
    EXPECT_EQ(registry.text(path, u"Default"), u"x");

    ASSERT_EQ(registry.create(u"SOFTWARE\\Nouvelle\\Clé", key), Registry::success);
    EXPECT_EQ(registry.set(key, u"", u"sans nom", 8), Registry::success);
    registry.close(key);
    EXPECT_EQ(registry.text(u"SOFTWARE\\Nouvelle\\Clé", u""), u"sans nom");
    registry.remove(u"SOFTWARE\\Nouvelle\\Clé", u"");
    EXPECT_EQ(registry.text(u"SOFTWARE\\Nouvelle\\Clé", u""), std::nullopt);
}

} // namespace embedded_registry_tests
