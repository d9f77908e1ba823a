#include "platform/win32/Win32Windows.h"

#include "automation/com/WideText.h"

#include <array>

namespace platform {

namespace {

using automation::com::fromWide;
using automation::com::WideText;

constexpr UINT untilAnswered = 5000;

HWND windowOf(WindowHandle handle) noexcept {
    return reinterpret_cast<HWND>(static_cast<std::intptr_t>(handle));
}

WindowHandle handleOf(HWND window) noexcept {
    return static_cast<WindowHandle>(reinterpret_cast<std::intptr_t>(window));
}

/// A text that a call writes to a buffer of the usual length; empty where it fails.
template <typename Call> std::u16string textFrom(Call call, WindowHandle handle) {
    std::array<wchar_t, WindowSystem::textBuffer> buffer{};
    const int length = call(windowOf(handle), buffer.data(), static_cast<int>(buffer.size()));
    return fromWide({buffer.data(), static_cast<std::size_t>(std::max(length, 0))});
}

} // namespace

WindowHandle Win32Windows::findWindow(std::u16string_view className) {
    return handleOf(FindWindowW(WideText(className).get(), nullptr));
}

std::optional<std::u16string> Win32Windows::className(WindowHandle window) {
    std::u16string name = textFrom(&GetClassNameW, window);
    return name.empty() ? std::nullopt : std::optional(std::move(name));
}

std::u16string Win32Windows::title(WindowHandle window) {
    // Asking a window of this process would send it a message, and wait for it.
    return textFrom(&InternalGetWindowText, window);
}

bool Win32Windows::isVisible(WindowHandle window) {
    // Whoever looks at the screen sees a window that hangs, also where the system shows a picture of it in its place.
    return IsWindowVisible(windowOf(window)) != FALSE || isHung(window);
}

bool Win32Windows::isIconic(WindowHandle window) {
    return IsIconic(windowOf(window)) != FALSE;
}

bool Win32Windows::isHung(WindowHandle window) {
    return IsHungAppWindow(windowOf(window)) != FALSE;
}

std::uint32_t Win32Windows::extendedStyle(WindowHandle window) {
    return static_cast<std::uint32_t>(GetWindowLongW(windowOf(window), GWL_EXSTYLE));
}

WindowHandle Win32Windows::parent(WindowHandle window) {
    return handleOf(GetParent(windowOf(window)));
}

WindowHandle Win32Windows::previous(WindowHandle window) {
    return handleOf(GetWindow(windowOf(window), GW_HWNDPREV));
}

void Win32Windows::show(WindowHandle window, std::int32_t command) {
    // Showing the window of another process waits for that process.
    if (isHung(window)) {
        ShowWindowAsync(windowOf(window), command);
    } else {
        ShowWindow(windowOf(window), command);
    }
}

bool Win32Windows::setForeground(WindowHandle window) {
    if (SetForegroundWindow(windowOf(window)) != FALSE) {
        return true;
    }
    // The system refuses it to whom is not in front himself; not to whom shares the input of the thread that is.
    const HWND windowInFront = GetForegroundWindow();
    const DWORD inFront = GetWindowThreadProcessId(windowInFront, nullptr);
    if (IsWindow(windowOf(window)) == FALSE || IsHungAppWindow(windowInFront) != FALSE ||
        AttachThreadInput(GetCurrentThreadId(), inFront, TRUE) == FALSE) {
        return false;
    }
    const bool isTaken = SetForegroundWindow(windowOf(window)) != FALSE;
    AttachThreadInput(GetCurrentThreadId(), inFront, FALSE);
    return isTaken;
}

void Win32Windows::send(WindowHandle window, std::uint32_t message) {
    SendMessageTimeoutW(windowOf(window), message, 0, 0, SMTO_ABORTIFHUNG, untilAnswered, nullptr);
}

} // namespace platform
