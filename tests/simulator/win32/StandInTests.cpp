#include "automation/LateBound.h"
#include "automation/WithoutRetry.h"
#include "automation/com/Objects.h"
#include "module/Session.h"
#include "platform/win32/RegistryKey.h"
#include "platform/win32/Win32Services.h"
#include "simulator/win32/StandInIdentity.h"
#include "tests/support/Errors.h"
#include "tests/win32/Program.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <thread>

namespace stand_in_tests {

namespace standin = simulator::standin;

using automation::LateBound;
using automation::ObjectPtr;
using automation::Value;
using automation::com::ComPtr;

constexpr std::u16string_view powerPoint = u"PowerPoint.Application.11";
constexpr std::int32_t minimized = 2;
constexpr std::int32_t maximized = 3;

/// What the running-object table has of the stand-in's controls; null where it has none.
ObjectPtr controlsThatRun() {
    ComPtr<IUnknown> running;
    GetActiveObject(standin::controlClass, nullptr, running.receive());
    return automation::com::objectOf(running.as<IDispatch>().get());
}

LateBound control() {
    LateBound controls(controlsThatRun());
    EXPECT_TRUE(controls);
    return controls;
}

/// The registered stand-in, started for each test and ended after it.
class StandInTest : public testing::Test {
protected:
    void SetUp() override {
        application_ = LateBound(servers_.create(powerPoint));
        frame_ = FindWindowW(standin::frameClass, nullptr);
        ASSERT_NE(frame_, nullptr);
        DWORD id = 0;
        GetWindowThreadProcessId(frame_, &id);
        process_ = OpenProcess(SYNCHRONIZE, FALSE, id);
    }
    void TearDown() override {
        SendMessageTimeoutW(frame_, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, 5000, nullptr);
        EXPECT_EQ(WaitForSingleObject(process_, 30000), WAIT_OBJECT_0) << "it ends with its window";
        CloseHandle(process_);
    }

    void show() {
        application_.put(u"Visible", true);
        ASSERT_NE(IsWindowVisible(frame_), FALSE);
        SetForegroundWindow(frame_);
    }

    platform::Win32Servers servers_;
    platform::Win32Keyboard keyboard_;
    LateBound application_;
    HWND frame_ = nullptr;
    HANDLE process_ = nullptr;
};

TEST_F(StandInTest, IsOnePowerPointWithARealWindow) {
    EXPECT_EQ(IsWindowVisible(frame_), FALSE) << "automation starts it invisible";
    EXPECT_TRUE(automation::isSame(servers_.attach(powerPoint), application_.object()));
    EXPECT_TRUE(automation::isSame(servers_.create(powerPoint), application_.object())) << "there is never a second";
    show();
    ShowWindow(frame_, SW_MINIMIZE);
    EXPECT_EQ(application_.get(u"WindowState"), Value(minimized));
    application_.put(u"WindowState", maximized);
    EXPECT_EQ(IsIconic(frame_), FALSE);
    EXPECT_NE(IsZoomed(frame_), FALSE);
    ShowWindow(frame_, SW_HIDE);
    EXPECT_EQ(application_.get(u"Visible"), Value(std::int32_t{0}));
    EXPECT_EQ(application_.get(u"WindowState"), Value(maximized)) << "an invisible one answers";
}

TEST_F(StandInTest, ClosesDialogsFromTheTopAndByEscape) {
    show();
    const LateBound controls = control();
    const auto dialogs = [&] { return controls.get(u"Dialogs").to<std::int32_t>(); };
    keyboard_.send(u"{ESC}");
    EXPECT_EQ(controls.get(u"Escapes"), Value(1));
    controls.call(u"OpenDialog", u"Police");
    const HWND lower = GetForegroundWindow();
    controls.call(u"OpenDialog", u"Couleurs");
    const HWND upper = GetForegroundWindow();
    ASSERT_EQ(dialogs(), 2);
    EXPECT_NE(GetWindowLongW(lower, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME, 0);
    EXPECT_EQ(GetParent(lower), frame_);
    EXPECT_EQ(GetParent(upper), lower);
    EXPECT_EQ(IsWindowEnabled(frame_), FALSE);
    SendMessageW(lower, WM_CLOSE, 0, 0);
    EXPECT_EQ(dialogs(), 2) << "it waits for its own dialog";
    keyboard_.send(u"{ESC}");
    EXPECT_EQ(dialogs(), 1);
    SendMessageW(lower, WM_CLOSE, 0, 0);
    EXPECT_EQ(dialogs(), 0);
    EXPECT_NE(IsWindowEnabled(frame_), FALSE);
    EXPECT_EQ(controls.get(u"Escapes"), Value(1)) << "the dialog has taken the second";
}

TEST_F(StandInTest, RefusesCallsWhileItIsBusyAndDiesWhenAsked) {
    const LateBound controls = control();
    controls.call(u"Refuse", 2);
    EXPECT_EQ(application_.get(u"Version"), Value(u"11.0")) << "the bridge tries again";
    controls.put(u"Busy", true);
    EXPECT_EQ(errorNumber([&] { application_.get(u"Version"); }), automation::remote::callRejected);
    controls.put(u"Busy", false);
    const auto before = controls.get(u"Calls").to<std::int32_t>();
    application_.get(u"Version");
    EXPECT_EQ(controls.get(u"Calls"), Value(before + 1));
    controls.call(u"DieAtCall", 2);
    application_.get(u"Version");
    EXPECT_TRUE(automation::remote::isDead(errorNumber([&] { application_.get(u"Version"); })));
}

TEST_F(StandInTest, IsAskedOnceWhetherItAnswers) {
    platform::Win32Services services;
    k73053::Session session(services.services());
    session.adopt(application_.object(), 0);
    EXPECT_TRUE(session.PowerPointRepond());
    const LateBound controls = control();
    controls.call(u"Refuse", 2);
    EXPECT_FALSE(session.PowerPointRepond());
    EXPECT_EQ(controls.get(u"Refusals"), Value(1)) << "a busy one is not asked again";
}

TEST_F(StandInTest, IsNotAskedWhileItHangs) {
    using namespace std::chrono_literals;
    using Clock = std::chrono::steady_clock;
    platform::Win32Services services;
    k73053::Session session(services.services());
    session.adopt(application_.object(), static_cast<platform::WindowHandle>(reinterpret_cast<std::intptr_t>(frame_)));
    std::thread other([this] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        const LateBound application(servers_.attach(powerPoint));
        control().call(u"DelayCall", 1, 7000);
        application.get(u"Version");
        CoUninitialize();
    });
    for (int wait = 0; wait < 325 && IsHungAppWindow(frame_) == FALSE; ++wait) {
        Sleep(20);
    }
    const auto start = Clock::now();
    EXPECT_FALSE(session.PowerPointRepond());
    EXPECT_LT(Clock::now() - start, 1s);
    other.join();
    EXPECT_TRUE(session.PowerPointRepond());
}

std::wstring serverKey() {
    std::array<wchar_t, 40> id{};
    StringFromGUID2(standin::applicationClass, id.data(), static_cast<int>(id.size()));
    return L"Software\\Classes\\CLSID\\" + std::wstring(id.data()) + L"\\LocalServer32";
}

std::wstring classOfPowerPoint() {
    const auto key =
        platform::RegistryKey::open(HKEY_CLASSES_ROOT, L"PowerPoint.Application.11\\CLSID", KEY_QUERY_VALUE);
    return key ? key.text(L"") : std::wstring();
}

void setClassOfPowerPoint(const std::wstring& id) {
    platform::RegistryKey::create(HKEY_LOCAL_MACHINE, L"Software\\Classes\\PowerPoint.Application.11\\CLSID")
        .setText(L"", id);
}

/// What runs for programs of a part of the registry; empty where it is not registered there.
std::wstring serverOf(REGSAM view) {
    const auto key = platform::RegistryKey::open(HKEY_LOCAL_MACHINE, serverKey(), KEY_QUERY_VALUE | view);
    return key ? key.text(L"") : std::wstring();
}

/// The program with a switch; what it prints where it must end with a code.
std::string said(const std::wstring& arguments, DWORD expected) {
    const tests::Program program(L"simulator\\powerpnt-standin.exe", arguments);
    EXPECT_EQ(program.exitCode(), expected) << program.output();
    return program.output();
}

bool startsWith(const std::string& text, std::string_view start) {
    return text.starts_with(start);
}

TEST(StandInRegistrationTest, NeverReplacesARealPowerPoint) {
    const std::wstring own = classOfPowerPoint();
    ASSERT_FALSE(own.empty());
    EXPECT_EQ(said(L"/RegServer", 0), "") << "its own registration it renews";
    const std::wstring real = L"{91493441-5A91-11CF-8700-00AA0060263B}";
    setClassOfPowerPoint(real);
    EXPECT_PRED2(startsWith, said(L"/RegServer", 1),
                 "powerpnt-standin: A PowerPoint is registered on this machine: PowerPoint.Application.11 is "
                 "{91493441-5A91-11CF-8700-00AA0060263B}. It stays");
    EXPECT_EQ(said(L"/UnregServer", 0), "");
    EXPECT_EQ(classOfPowerPoint(), real);
    setClassOfPowerPoint(own);
    said(L"/RegServer", 0);
    EXPECT_EQ(classOfPowerPoint(), own);
}

TEST(StandInRegistrationTest, IsTakenBackPartByPart) {
    constexpr bool is64 = sizeof(void*) == 8;
    constexpr REGSAM ownView = is64 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
    constexpr REGSAM otherView = is64 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    const std::wstring other = is64 ? L" /View:32" : L" /View:64";
    const std::wstring ofOther = serverOf(otherView);
    const std::wstring ofOwn = serverOf(ownView);
    said(L"/RegServer" + other, 0);

    said(L"/UnregServer", 0);
    EXPECT_EQ(serverOf(ownView), L"");
    EXPECT_NE(classOfPowerPoint(), L"") << "the other part needs the name";
    said(L"/UnregServer" + other, 0);
    EXPECT_EQ(serverOf(otherView), L"");
    EXPECT_EQ(classOfPowerPoint(), L"");
    said(L"/UnregServer", 0);

    said(L"/RegServer", 0);
    EXPECT_EQ(serverOf(ownView), ofOwn);
    if (!ofOther.empty()) {
        said(L"/RegServer" + other, 0);
        platform::RegistryKey::create(HKEY_LOCAL_MACHINE, serverKey(), KEY_SET_VALUE | otherView).setText(L"", ofOther);
    }
}

TEST(StandInCommandLineTest, NamesASwitchThatItDoesNotKnow) {
    EXPECT_PRED2(startsWith, said(L"/Nonsense", 2),
                 "powerpnt-standin: The following argument was not expected: /Nonsense; powerpnt-standin --help");
    EXPECT_PRED2(startsWith, said(L"/View:16 /RegServer", 2), "powerpnt-standin: --View: ");
}

TEST(StandInCommandLineTest, StartsAPowerPointAsItsSwitchesSay) {
    using Clock = std::chrono::steady_clock;
    using namespace std::chrono_literals;
    constexpr DWORD good = 0;
    constexpr DWORD diedOnPurpose = 3;
    const auto frame = [] { return FindWindowW(standin::frameClass, nullptr); };
    const auto askOnce = [](const LateBound& application) {
        const automation::WithoutRetry once;
        return errorNumber([&] { application.get(u"Version"); });
    };
    const struct {
        const wchar_t* arguments;
        DWORD code;
        std::function<bool(const LateBound&)> isAsAskedFor;
    } cases[] = {
        {L"", good, [&](const LateBound&) { return IsWindowVisible(frame()) != FALSE && IsIconic(frame()) == FALSE; }},
        {L"/Hidden", good,
         [&](const LateBound&) { return IsWindow(frame()) != FALSE && IsWindowVisible(frame()) == FALSE; }},
        {L"/Minimised", good,
         [&](const LateBound&) { return IsWindowVisible(frame()) != FALSE && IsIconic(frame()) != FALSE; }},
        {L"/Slow:300", good,
         [&](const LateBound& application) {
             const auto start = Clock::now();
             return askOnce(application) == noError && Clock::now() - start >= 300ms;
         }},
        {L"/Busy:2", good,
         [&](const LateBound& application) {
             constexpr auto refused = automation::remote::callRejected;
             // NOLINTNEXTLINE(misc-redundant-expression): it is asked again
             return askOnce(application) == refused && askOnce(application) == refused &&
                    askOnce(application) == noError;
         }},
        {L"/Die:2", diedOnPurpose,
         [&](const LateBound& application) {
             return askOnce(application) == noError && automation::remote::isDead(askOnce(application));
         }},
    };
    for (const auto& [arguments, code, isAsAskedFor] : cases) {
        const tests::Program program(L"simulator\\powerpnt-standin.exe", arguments);
        for (int wait = 0; wait < 1500 && !controlsThatRun(); ++wait) {
            Sleep(20);
        }
        // Creating it gives the one that runs; and Wine would go on handing out one that has died, if nobody had.
        EXPECT_TRUE(isAsAskedFor(LateBound(platform::Win32Servers().create(powerPoint)))) << arguments;
        SendMessageTimeoutW(frame(), WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, 5000, nullptr);
        EXPECT_EQ(program.exitCode(), code) << arguments;
    }
}

} // namespace stand_in_tests
