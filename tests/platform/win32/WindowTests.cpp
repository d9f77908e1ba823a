#include "automation/Error.h"
#include "platform/win32/Win32Keyboard.h"
#include "platform/win32/Win32Windows.h"
#include "tests/win32/TestWindow.h"

#include <gtest/gtest.h>

namespace window_tests {

using namespace std::chrono_literals;
using platform::WindowHandle;
using platform::WindowSystem;
using tests::TestWindow;
using Clock = std::chrono::steady_clock;

WindowHandle handleOf(const TestWindow& window) {
    return static_cast<WindowHandle>(reinterpret_cast<std::intptr_t>(window.handle()));
}

class WindowTest : public testing::Test {
protected:
    platform::Win32Windows windows_;
    platform::Win32Keyboard keyboard_;
};

TEST_F(WindowTest, DescribesAWindow) {
    const TestWindow window({.title = L"Présentation – été"});
    const WindowHandle handle = handleOf(window);
    EXPECT_EQ(windows_.findWindow(u"K73053 test window"), handle);
    EXPECT_EQ(windows_.className(handle), u"K73053 test window");
    EXPECT_EQ(windows_.title(handle), u"Présentation – été");
    EXPECT_EQ(windows_.parent(handle), 0);
    EXPECT_FALSE(windows_.isVisible(handle));
    windows_.show(handle, SW_SHOW);
    EXPECT_TRUE(windows_.isVisible(handle));
    EXPECT_EQ(windows_.extendedStyle(handle) & WindowSystem::dialogModalFrame, 0U);

    const TestWindow longTitle({.title = std::wstring(400, L'x')});
    EXPECT_EQ(windows_.title(handleOf(longTitle)).size(), 254U);
}

TEST_F(WindowTest, SaysNothingOfAWindowThatIsGone) {
    WindowHandle gone = 0;
    {
        const TestWindow window({});
        gone = handleOf(window);
    }
    for (const WindowHandle handle : {gone, 0, -1}) {
        EXPECT_FALSE(windows_.className(handle));
        EXPECT_EQ(windows_.title(handle), u"");
        EXPECT_FALSE(windows_.isVisible(handle));
        EXPECT_FALSE(windows_.isIconic(handle));
        EXPECT_FALSE(windows_.isHung(handle));
        EXPECT_EQ(windows_.extendedStyle(handle), 0U);
        EXPECT_EQ(windows_.parent(handle), 0);
        EXPECT_EQ(windows_.previous(handle), 0);
        EXPECT_FALSE(windows_.setForeground(handle));
        windows_.show(handle, WindowSystem::showMaximized);
        windows_.send(handle, WindowSystem::closeMessage);
    }
    EXPECT_EQ(windows_.findWindow(u"K73053 no such class"), 0);
}

TEST_F(WindowTest, RestoresAndBringsForward) {
    const TestWindow window({.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_MINIMIZE});
    const TestWindow other({.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE});
    EXPECT_TRUE(windows_.isIconic(handleOf(window)));
    EXPECT_TRUE(windows_.setForeground(handleOf(other)));
    windows_.show(handleOf(window), WindowSystem::showMaximized);
    EXPECT_FALSE(windows_.isIconic(handleOf(window)));
    EXPECT_TRUE(IsZoomed(window.handle()));
    EXPECT_TRUE(windows_.setForeground(handleOf(window)));
    EXPECT_EQ(GetForegroundWindow(), window.handle());
}

TEST_F(WindowTest, FindsAndClosesTheDialogAboveAWindow) {
    const TestWindow window({.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE});
    const TestWindow dialog({.title = L"Boîte",
                             .style = WS_POPUP | WS_CAPTION | WS_VISIBLE,
                             .extendedStyle = WS_EX_DLGMODALFRAME,
                             .owner = window.handle()});
    WindowHandle above = windows_.previous(handleOf(window));
    while (above != 0 && above != handleOf(dialog)) {
        above = windows_.previous(above);
    }
    ASSERT_EQ(above, handleOf(dialog)) << "an owned window stands above its owner";
    EXPECT_EQ(windows_.parent(above), handleOf(window));
    EXPECT_NE(windows_.extendedStyle(above) & WindowSystem::dialogModalFrame, 0U);
    windows_.send(above, WindowSystem::closeMessage);
    EXPECT_FALSE(dialog.isOpen());
    EXPECT_TRUE(window.isOpen());
}

TEST_F(WindowTest, DoesNotWaitLongForAWindowThatHangs) {
    const TestWindow window({.title = L"Boîte"}); // hidden, as the system hides one that hangs
    window.hang(5600ms);
    const auto start = Clock::now();
    EXPECT_EQ(windows_.title(handleOf(window)), u"Boîte");
    EXPECT_LT(Clock::now() - start, 2s) << "its thread is not asked";
    EXPECT_FALSE(windows_.isHung(handleOf(window)));
    EXPECT_FALSE(windows_.isVisible(handleOf(window)));
    windows_.send(handleOf(window), WindowSystem::closeMessage);
    EXPECT_LT(Clock::now() - start, 6s);
    EXPECT_TRUE(windows_.isHung(handleOf(window)));
    EXPECT_TRUE(windows_.isVisible(handleOf(window))) << "who looks at the screen sees it";
}

TEST_F(WindowTest, SendsAKeyAndWaitsUntilItIsProcessed) {
    const TestWindow window({.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .slowness = 300ms});
    ASSERT_TRUE(windows_.setForeground(handleOf(window)));
    for (int pressed = 1; pressed <= 3; ++pressed) {
        keyboard_.send(u"{ESC}");
        EXPECT_EQ(window.escapes(), pressed);
    }
    for (const auto* const wrong : {u"ESC", u"{ESC", u"{F1}", u"{ESC}x", u""}) {
        EXPECT_THROW(keyboard_.send(wrong), automation::Error);
    }
    EXPECT_EQ(window.escapes(), 3);
}

TEST_F(WindowTest, LeavesTheEndOfTheProgramToItsOwnLoop) {
    const HWND own = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 300, 200, nullptr,
                                     nullptr, nullptr, nullptr);
    SetForegroundWindow(own);
    ASSERT_EQ(GetForegroundWindow(), own);
    PostQuitMessage(7);
    keyboard_.send(u"{ESC}");
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
    DestroyWindow(own);
}

} // namespace window_tests
