#include "automation/LateBound.h"
#include "automation/com/WideText.h"
#include "platform/win32/RegistryKey.h"
#include "platform/win32/Win32Services.h"
#include "tests/automation/com/TestServer.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <thread>

namespace service_tests {

using automation::Access;
using automation::Error;
using automation::LateBound;
using automation::Value;

TEST(Locale, GivesSizeThenText) {
    platform::Win32Services system;
    platform::Locale& locale = system.services().locale;
    EXPECT_EQ(locale.getInfo(0, platform::Locale::measurementSystem, {}), 2);
    std::array<char, 2> text{};
    EXPECT_EQ(locale.getInfo(0, platform::Locale::measurementSystem, text), 2);
    EXPECT_TRUE(text[0] == '0' || text[0] == '1') << text[0];
    EXPECT_EQ(queryLocale(locale, 0x040C, platform::Locale::measurementSystem), u"0");
    EXPECT_EQ(queryLocale(locale, 0x0409, platform::Locale::measurementSystem), u"1");
    EXPECT_EQ(queryLocale(locale, 0, 0x7FFF), u"");
}

/// Registers the server under a programmatic identifier: for everyone, since Wine looks nowhere else.
class ServerTest : public testing::Test {
protected:
    static constexpr const char16_t* id = u"K73053Tests.Sample.11";
    const std::wstring idKey = L"K73053Tests.Sample.11";

    void SetUp() override {
        std::array<wchar_t, 64> text{};
        StringFromGUID2(tests::serverClass, text.data(), static_cast<int>(text.size()));
        classKey_ = std::wstring(L"CLSID\\") + text.data();
        put(idKey + L"\\CLSID", text.data());
        put(classKey_ + L"\\LocalServer32", tests::serverCommand());
    }
    void TearDown() override {
        for (const std::wstring& key : {idKey, classKey_}) {
            EXPECT_EQ(RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str()), ERROR_SUCCESS);
        }
    }

    static void put(const std::wstring& key, const std::wstring& text) {
        platform::RegistryKey::create(HKEY_CLASSES_ROOT, key).setText(L"", text);
    }

    platform::Win32Services system_;
    platform::ApplicationServers& servers_ = system_.services().servers;
    std::wstring classKey_;
};

TEST_F(ServerTest, AttachesToARunningServerOrSaysThatThereIsNone) {
    EXPECT_EQ(errorNumber([&] { servers_.attach(id); }), 429);
    EXPECT_EQ(errorNumber([&] { servers_.attach(u"K73053Tests.Absent"); }), 429);
    tests::ServerProcess process;
    {
        const LateBound attached(servers_.attach(id));
        EXPECT_EQ(attached.get(u"Number"), Value(7));
        EXPECT_TRUE(isSame(servers_.attach(id), attached.object()));
    }
    process.end();
    // The running-object table forgets a process that has ended a little later.
    const auto attach = [&] { return errorNumber([&] { servers_.attach(id); }); };
    for (int wait = 0; wait < 1500 && attach() != 429; ++wait) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_EQ(attach(), 429);
}

TEST_F(ServerTest, StartsAServerOfItsOwn) {
    EXPECT_EQ(errorNumber([&] { servers_.create(u"K73053Tests.Absent"); }), 429);
    const LateBound created(servers_.create(id));
    EXPECT_EQ(created.call(u"Add", 1, 2), Value(3));
    EXPECT_THROW(created.call(u"Die"), Error);

    put(classKey_ + L"\\LocalServer32", L"C:\\absent.exe");
    EXPECT_NE(errorNumber([&] { servers_.create(id); }), noError);
}

} // namespace service_tests
