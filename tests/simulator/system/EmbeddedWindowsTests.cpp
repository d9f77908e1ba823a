#include "simulator/system/EmbeddedKeyboard.h"
#include "simulator/system/EmbeddedMainWindow.h"

#include <gtest/gtest.h>

namespace embedded_windows_tests {

using platform::WindowHandle;
using platform::WindowSystem;
using simulator::EmbeddedWindows;

class EmbeddedWindowsTest : public testing::Test {
protected:
    void SetUp() override { main.setVisible(true); }

    EmbeddedWindows windows;
    WindowHandle desk = windows.create({.className = u"Bureau", .title = u"Cours"});
    bool closing = false;
    simulator::EmbeddedMainWindow main{windows, [this] { closing = true; }};
};

TEST_F(EmbeddedWindowsTest, StandsDialogsAboveTheirOwners) {
    main.openDialog(u"Ouvrir");
    const WindowHandle open = windows.previous(main.handle());
    main.openDialog(u"Options");
    const WindowHandle options = windows.previous(open);
    EXPECT_EQ(windows.title(open), u"Ouvrir");
    EXPECT_EQ(windows.title(options), u"Options");
    EXPECT_EQ(windows.parent(open), main.handle());
    EXPECT_EQ(windows.parent(options), open);
    EXPECT_EQ(windows.parent(main.handle()), 0);
    EXPECT_EQ(windows.extendedStyle(open), WindowSystem::dialogModalFrame);
    EXPECT_EQ(windows.extendedStyle(main.handle()), 0U);
    EXPECT_EQ(windows.previous(options), 0);

    EXPECT_TRUE(windows.setForeground(desk));
    EXPECT_FALSE(main.isActive());
    EXPECT_TRUE(windows.setForeground(main.handle()));
    EXPECT_EQ(windows.foreground(), options);
    EXPECT_TRUE(main.isActive());
    EXPECT_EQ(windows.previous(desk), main.handle());

    windows.send(open, WindowSystem::closeMessage);
    EXPECT_EQ(main.dialogs(), 0U);
    EXPECT_EQ(windows.className(options), std::nullopt);
    EXPECT_EQ(windows.foreground(), main.handle());
    EXPECT_FALSE(closing);
    windows.send(main.handle(), WindowSystem::closeMessage);
    EXPECT_TRUE(closing);
}

TEST_F(EmbeddedWindowsTest, ClosesTheFrontDialogOnEscape) {
    simulator::EmbeddedKeyboard keyboard(windows);
    main.openDialog(u"Ouvrir");
    main.openDialog(u"Options");
    keyboard.send(u"{ESC}");
    EXPECT_EQ(main.dialogs(), 1U);
    windows.setForeground(desk);
    keyboard.send(u"{ESC}");
    EXPECT_EQ(main.dialogs(), 1U);
    windows.setForeground(main.handle());
    keyboard.send(u"abc{esc}{ESC}");
    EXPECT_EQ(main.dialogs(), 0U);
    EXPECT_TRUE(windows.isVisible(main.handle()));
    EXPECT_EQ(keyboard.sent(), u"{ESC}{ESC}abc{esc}{ESC}");
}

TEST_F(EmbeddedWindowsTest, ShowsAndPlacesWindows) {
    struct Case {
        std::int32_t command;
        bool visible;
        bool iconic;
        simulator::PpWindowState state;
    };
    for (const auto& [command, visible, iconic, state] : std::initializer_list<Case>{
             {WindowSystem::showMaximized, true, false, simulator::ppWindowMaximized},
             {EmbeddedWindows::minimize, true, true, simulator::ppWindowMinimized},
             {EmbeddedWindows::restore, true, false, simulator::ppWindowMaximized},
             {EmbeddedWindows::showNothing, false, false, simulator::ppWindowMaximized},
             {EmbeddedWindows::showAsIs, true, false, simulator::ppWindowMaximized},
             {EmbeddedWindows::showNormal, true, false, simulator::ppWindowNormal},
             {EmbeddedWindows::showMinimized, true, true, simulator::ppWindowMinimized},
             {EmbeddedWindows::restore, true, false, simulator::ppWindowNormal},
         }) {
        windows.show(main.handle(), command);
        EXPECT_EQ(windows.isVisible(main.handle()), visible) << command;
        EXPECT_EQ(windows.isIconic(main.handle()), iconic) << command;
        EXPECT_EQ(main.state(), state) << command;
    }
    main.setVisible(false);
    main.setState(simulator::ppWindowMaximized);
    EXPECT_FALSE(main.isVisible());
    EXPECT_EQ(main.state(), simulator::ppWindowMaximized);
    EXPECT_EQ(windows.foreground(), desk);
    EXPECT_EQ(windows.findWindow(u"pp11frameclass"), main.handle());
}

TEST_F(EmbeddedWindowsTest, AnswersForWindowsThatAreGone) {
    const WindowHandle gone = main.handle();
    main.openDialog(u"Ouvrir");
    main.close();
    main.close();
    EXPECT_EQ(windows.findWindow(u"PP11FrameClass"), 0);
    EXPECT_EQ(windows.className(gone), std::nullopt);
    EXPECT_FALSE(windows.isVisible(gone));
    EXPECT_FALSE(windows.setForeground(gone));
    windows.show(gone, WindowSystem::showMaximized);
    windows.send(gone, WindowSystem::closeMessage);
    EXPECT_NE(windows.create({.className = u"PP11FrameClass"}), gone);
}

} // namespace embedded_windows_tests
