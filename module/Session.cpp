#include "module/Session.h"

#include "platform/ErrorReport.h"

namespace k73053 {

using platform::ignoringErrors;
using platform::WindowHandle;
using platform::WindowSystem;

namespace {

constexpr std::u16string_view programmaticId = u"PowerPoint.application.11";
constexpr std::u16string_view mainWindowClass = u"PP11FrameClass";

/// More windows than a desktop holds: windows that change places during a walk must not make it endless.
constexpr int mostWindows = 10000;

} // namespace

void Session::GetApplication() {
    try {
        application = ppt::Application();
        const bool mayAttach = window == 0 || services_.windows.isVisible(window);
        const bool attached = mayAttach && ignoringErrors([&] {
                                  application = ppt::Application(services_.servers.attach(programmaticId));
                              });
        if (!attached) {
            application = ppt::Application(services_.servers.create(programmaticId));
        }
        application.Visible(ppt::msoTrue);
    } catch (...) {
        const automation::Error current = automation::currentError();
        application = ppt::Application();
        platform::reportError(current, u"Module", u"GetApplication", current.description());
    }
    window = services_.windows.findWindow(mainWindowClass);
    ignoringErrors([&] { startupDialog = application.ShowStartupDialog() != ppt::msoFalse; });
}

bool Session::PowerPointVisible() {
    if (services_.windows.isVisible(window)) {
        return true;
    }
    ignoringErrors([&] {
        static_cast<void>(application.WindowState());
        application.Quit();
    });
    return false;
}

bool Session::PowerPointRepond() const noexcept {
    return ignoringErrors([&] {
        const std::int32_t state = application.WindowState();
        application.WindowState(ppt::ppWindowMaximized);
        application.WindowState(state);
    });
}

bool Session::ActiveFenetre() {
    if (services_.windows.findWindow(mainWindowClass) == 0) {
        return false;
    }
    application.WindowState(ppt::ppWindowMaximized);
    if (services_.windows.isIconic(window)) {
        services_.windows.show(window, WindowSystem::showMaximized);
    }
    services_.windows.setForeground(window);
    return true;
}

void Session::EnvoieEchap(WindowHandle handle) {
    services_.windows.setForeground(handle);
    services_.keyboard.send(u"{ESC}");
}

void Session::FermeDialogues(WindowHandle handle) {
    WindowSystem& windows = services_.windows;
    const auto isDialog = [&](WindowHandle candidate) {
        return !windows.title(candidate).empty() && windows.isVisible(candidate) &&
               (windows.extendedStyle(candidate) & WindowSystem::dialogModalFrame) != 0 &&
               windows.parent(candidate) == handle;
    };
    WindowHandle dialog = windows.previous(handle);
    for (int seen = 0; dialog != 0 && !isDialog(dialog); ++seen) {
        dialog = seen < mostWindows ? windows.previous(dialog) : 0;
    }
    if (dialog != 0) {
        FermeDialogues(dialog);
        windows.send(dialog, WindowSystem::closeMessage);
    }
}

void Session::InitCommandBar() {
    const auto show = [](const ppt::CommandBar& bar, ppt::MsoBarPosition position) {
        // Hidden before it is moved and shown again afterwards, so that the new position takes effect.
        ignoringErrors([&] { bar.Visible(false); });
        ignoringErrors([&] { bar.Position(position); });
        ignoringErrors([&] { bar.Visible(true); });
    };
    for (const std::u16string_view name : {u"standard", u"formatting"}) {
        const ppt::CommandBar top = bar(name);
        ignoringErrors([&] { top.Enabled(true); });
        show(top, ppt::msoBarTop);
    }
    const ppt::CommandBar drawing = bar(u"Drawing");
    ignoringErrors([&] { drawing.Enabled(true); });
    ignoringErrors([&] { static_cast<void>(drawing.Visible()); });
    ignoringErrors([&] { static_cast<void>(drawing.Position()); });
    show(drawing, ppt::msoBarBottom);
    const ppt::CommandBar pane = bar(u"Task Pane");
    ignoringErrors([&] { static_cast<void>(pane.Enabled()); });
    ignoringErrors([&] { pane.Position(ppt::msoBarRight); });
    ignoringErrors([&] { pane.Visible(taskPane); });
}

void Session::readKeptSettings() {
    ignoringErrors([&] { taskPane = application.CommandBars().Item(u"Task Pane").Visible(); });
    ignoringErrors([&] { startupDialog = application.ShowStartupDialog() != ppt::msoFalse; });
}

ppt::CommandBar Session::bar(std::u16string_view name) const noexcept {
    ppt::CommandBar found;
    ignoringErrors([&] { found = application.CommandBars().Item(name); });
    return found;
}

} // namespace k73053
