#include "automation/Error.h"
#include "automation/LateBound.h"
#include "automation/com/Objects.h"
#include "module/Session.h"
#include "platform/win32/Win32Services.h"
#include "simulator/win32/StandInIdentity.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace {

namespace standin = simulator::standin;

using automation::LateBound;
using automation::ObjectPtr;
using automation::Value;
using automation::com::ComPtr;

constexpr std::u16string_view powerPoint = u"PowerPoint.Application.11";
constexpr std::int32_t minimized = 2;
constexpr std::int32_t maximized = 3;

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
        EXPECT_EQ(WaitForSingleObject(process_, 10000), WAIT_OBJECT_0) << "it ends with its window";
        CloseHandle(process_);
    }

    static LateBound control() {
        ComPtr<IUnknown> running;
        EXPECT_EQ(GetActiveObject(standin::controlClass, nullptr, running.receive()), S_OK);
        return LateBound(automation::com::objectOf(running.as<IDispatch>().get()));
    }
    void show() {
        application_.put(u"Visible", true);
        ASSERT_NE(IsWindowVisible(frame_), FALSE);
        SetForegroundWindow(frame_);
    }
    template <typename Operation> static std::int32_t numberRaised(const Operation& operation) {
        try {
            operation();
        } catch (const automation::Error& error) {
            return error.number();
        }
        return 0;
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

TEST_F(StandInTest, GoesWithQuit) {
    application_.call(u"Quit");
    EXPECT_EQ(IsWindow(frame_), FALSE);
    EXPECT_EQ(numberRaised([&] { servers_.attach(powerPoint); }), 429);
    EXPECT_EQ(WaitForSingleObject(process_, 5000), WAIT_OBJECT_0);
    EXPECT_TRUE(automation::remote::isDead(numberRaised([&] { application_.get(u"Name"); })));
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
    EXPECT_EQ(numberRaised([&] { application_.get(u"Version"); }), automation::remote::callRejected);
    controls.put(u"Busy", false);
    const auto before = controls.get(u"Calls").to<std::int32_t>();
    application_.get(u"Version");
    EXPECT_EQ(controls.get(u"Calls"), Value(before + 1));
    controls.call(u"DieAtCall", 2);
    application_.get(u"Version");
    EXPECT_TRUE(automation::remote::isDead(numberRaised([&] { application_.get(u"Version"); })));
}

TEST_F(StandInTest, IsAskedOnceWhetherItAnswers) {
    platform::Win32Services services;
    k73053::Session session(services.services());
    session.application = ppt::Application(application_.object());
    EXPECT_TRUE(session.PowerPointRepond());
    const LateBound controls = control();
    controls.call(u"Refuse", 2);
    EXPECT_FALSE(session.PowerPointRepond());
    EXPECT_EQ(controls.get(u"Refusals"), Value(1)) << "a busy one is not asked again";
}

/// Runs the registered program with a switch; its exit code.
DWORD runStandIn(const std::wstring& arguments) {
    std::array<wchar_t, 1024> program{};
    DWORD size = sizeof(program);
    std::array<wchar_t, 40> id{};
    StringFromGUID2(standin::applicationClass, id.data(), static_cast<int>(id.size()));
    RegGetValueW(HKEY_CLASSES_ROOT, (L"CLSID\\" + std::wstring(id.data()) + L"\\LocalServer32").c_str(), nullptr,
                 RRF_RT_REG_SZ, nullptr, program.data(), &size);
    std::wstring command = program.data() + (L" " + arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    DWORD code = STILL_ACTIVE;
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process) !=
        FALSE) {
        WaitForSingleObject(process.hProcess, 20000);
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    return code;
}

std::wstring classOfPowerPoint() {
    std::array<wchar_t, 64> text{};
    DWORD size = sizeof(text);
    RegGetValueW(HKEY_CLASSES_ROOT, L"PowerPoint.Application.11\\CLSID", nullptr, RRF_RT_REG_SZ, nullptr, text.data(),
                 &size);
    return text.data();
}

void setClassOfPowerPoint(const std::wstring& id) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\PowerPoint.Application.11\\CLSID", L"", REG_SZ, id.c_str(),
                    static_cast<DWORD>((id.size() + 1) * sizeof(wchar_t)));
}

TEST(StandInRegistrationTest, NeverReplacesARealPowerPoint) {
    const std::wstring own = classOfPowerPoint();
    ASSERT_FALSE(own.empty());
    EXPECT_EQ(runStandIn(L"/RegServer"), 0U) << "its own registration it renews";
    const std::wstring real = L"{91493441-5A91-11CF-8700-00AA0060263B}";
    setClassOfPowerPoint(real);
    EXPECT_EQ(runStandIn(L"/RegServer"), 1U);
    EXPECT_EQ(classOfPowerPoint(), real);
    setClassOfPowerPoint(own);
    EXPECT_EQ(runStandIn(L"/Nonsense"), 2U);
    EXPECT_EQ(runStandIn(L"/RegServer"), 0U);
    EXPECT_EQ(classOfPowerPoint(), own);
}

} // namespace
