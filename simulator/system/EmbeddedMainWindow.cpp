#include "simulator/system/EmbeddedMainWindow.h"

#include <utility>

namespace simulator {

using platform::WindowHandle;

EmbeddedMainWindow::EmbeddedMainWindow(EmbeddedWindows& windows, std::function<void()> onClose)
    : windows_(windows),
      handle_(
          windows.create({.className = std::u16string(frameClass), .visible = false, .onClose = std::move(onClose)})) {}

EmbeddedMainWindow::~EmbeddedMainWindow() {
    windows_.destroy(handle_);
}

void EmbeddedMainWindow::setVisible(bool visible) {
    windows_.show(handle_, visible ? EmbeddedWindows::showAsIs : EmbeddedWindows::showNothing);
}

PpWindowState EmbeddedMainWindow::state() const {
    switch (windows_.placement(handle_)) {
    case EmbeddedWindows::Placement::Minimized: return ppWindowMinimized;
    case EmbeddedWindows::Placement::Maximized: return ppWindowMaximized;
    default: return ppWindowNormal;
    }
}

void EmbeddedMainWindow::setState(PpWindowState state) {
    const bool visible = isVisible();
    switch (state) {
    case ppWindowMinimized: windows_.show(handle_, EmbeddedWindows::showMinimized); break;
    case ppWindowMaximized: windows_.show(handle_, EmbeddedWindows::showMaximized); break;
    default: windows_.show(handle_, EmbeddedWindows::showNormal); break;
    }
    setVisible(visible);
}

bool EmbeddedMainWindow::isActive() const {
    const WindowHandle foreground = windows_.foreground();
    return foreground != 0 && foreground == top();
}

void EmbeddedMainWindow::openDialog(std::u16string_view title) {
    windows_.create({.className = std::u16string(dialogClass),
                     .title = std::u16string(title),
                     .owner = top(),
                     .extendedStyle = platform::WindowSystem::dialogModalFrame});
}

std::size_t EmbeddedMainWindow::dialogs() const {
    std::size_t count = 0;
    for (WindowHandle dialog = windows_.ownedBy(handle_); dialog != 0; dialog = windows_.ownedBy(dialog)) {
        ++count;
    }
    return count;
}

void EmbeddedMainWindow::closeDialog() {
    if (const WindowHandle dialog = top(); dialog != handle_) {
        windows_.destroy(dialog);
    }
}

void EmbeddedMainWindow::close() {
    windows_.destroy(std::exchange(handle_, 0));
}

WindowHandle EmbeddedMainWindow::top() const {
    WindowHandle window = handle_;
    while (const WindowHandle dialog = windows_.ownedBy(window)) {
        window = dialog;
    }
    return window;
}

} // namespace simulator
