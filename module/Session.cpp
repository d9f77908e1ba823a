#include "module/Session.h"

#include "automation/WithoutRetry.h"
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

void Session::adopt(const automation::ObjectPtr& application, WindowHandle window) {
    application_ = ppt::Application(application);
    window_ = window;
}

void Session::forget() noexcept {
    application_ = ppt::Application();
    window_ = 0;
}

bool Session::attach() {
    if (!ignoringErrors([&] { application_ = ppt::Application(services_.servers.attach(programmaticId)); })) {
        return false;
    }
    try {
        application_.Visible(ppt::msoTrue);
        return true;
    } catch (const automation::Error& error) {
        if (!automation::remote::isDead(error.number())) {
            throw;
        }
        application_ = ppt::Application();
        return false;
    }
}

void Session::GetApplication() {
    try {
        application_ = ppt::Application();
        const bool mayAttach = window_ == 0 || services_.windows.isVisible(window_);
        if (!mayAttach || !attach()) {
            application_ = ppt::Application(services_.servers.create(programmaticId));
            application_.Visible(ppt::msoTrue);
        }
    } catch (...) {
        const automation::Error current = automation::currentError();
        application_ = ppt::Application();
        platform::reportError(current, u"Module", u"GetApplication", current.description());
    }
    window_ = services_.windows.findWindow(mainWindowClass);
    readStartupDialog();
}

bool Session::PowerPointVisible() {
    if (services_.windows.isVisible(window_)) {
        return true;
    }
    ignoringErrors([&] {
        static_cast<void>(application_.WindowState());
        application_.Quit();
    });
    return false;
}

bool Session::isHung() const {
    return services_.windows.isHung(window_);
}

bool Session::PowerPointRepond() const {
    if (isHung()) {
        return false;
    }
    const automation::WithoutRetry once;
    return ignoringErrors([&] {
        const std::int32_t state = application_.WindowState();
        application_.WindowState(ppt::ppWindowMaximized);
        application_.WindowState(state);
    });
}

bool Session::ActiveFenetre() {
    if (services_.windows.findWindow(mainWindowClass) == 0) {
        return false;
    }
    application_.WindowState(ppt::ppWindowMaximized);
    if (services_.windows.isIconic(window_)) {
        services_.windows.show(window_, WindowSystem::showMaximized);
    }
    // Whether the system lets it come to the front is not asked: a window that stays behind is still being worked in.
    services_.windows.setForeground(window_);
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

void Session::closeWhatRefuses(const automation::Error& error) {
    const bool isRefused =
        error.number() == automation::remote::callRejected || error.number() == automation::remote::retryLater;
    if (isRefused) {
        ignoringErrors([&] {
            const WindowHandle window = window_ != 0 ? window_ : services_.windows.findWindow(mainWindowClass);
            FermeDialogues(window);
        });
    }
}

void Session::InitCommandBar() {
    // Every step reaches its bar afresh, and what it refuses does not stop the next.
    const auto on = [this](std::u16string_view name, const auto& step) {
        ignoringErrors([&] { step(application_.CommandBars().Item(name)); });
    };
    const auto enable = [](const ppt::CommandBar& bar) { bar.Enabled(true); };
    const auto show = [&on](std::u16string_view name, ppt::MsoBarPosition position) {
        // Hidden before it is moved and shown again afterwards, so that the new position takes effect.
        on(name, [](const ppt::CommandBar& bar) { bar.Visible(false); });
        on(name, [position](const ppt::CommandBar& bar) { bar.Position(position); });
        on(name, [](const ppt::CommandBar& bar) { bar.Visible(true); });
    };
    for (const std::u16string_view name : {u"standard", u"formatting"}) {
        on(name, enable);
        show(name, ppt::msoBarTop);
    }
    on(u"Drawing", enable);
    // Reads whose answers nothing needs: they belong to the sequence of calls all the same.
    on(u"Drawing", [](const ppt::CommandBar& bar) { static_cast<void>(bar.Visible()); });
    on(u"Drawing", [](const ppt::CommandBar& bar) { static_cast<void>(bar.Position()); });
    show(u"Drawing", ppt::msoBarBottom);
    on(u"Task Pane", [](const ppt::CommandBar& bar) { static_cast<void>(bar.Enabled()); });
    on(u"Task Pane", [](const ppt::CommandBar& bar) { bar.Position(ppt::msoBarRight); });
    on(u"Task Pane", [this](const ppt::CommandBar& bar) { bar.Visible(taskPane_); });
}

void Session::readKeptSettings() {
    if (isHung()) {
        return;
    }
    ignoringErrors([&] { taskPane_ = application_.CommandBars().Item(u"Task Pane").Visible(); });
    readStartupDialog();
}

void Session::readStartupDialog() {
    ignoringErrors([&] { startupDialog_ = application_.ShowStartupDialog() != ppt::msoFalse; });
}

void Session::restoreStartupDialog() const noexcept {
    if (startupDialog_) {
        ignoringErrors([&] { application_.ShowStartupDialog(*startupDialog_ ? ppt::msoTrue : ppt::msoFalse); });
    }
}

} // namespace k73053
