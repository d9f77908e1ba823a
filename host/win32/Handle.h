#pragma once

#include <windows.h>

#include <utility>

namespace host {

/// A handle of the system, closed at the end.
class Handle {
public:
    Handle() noexcept = default;
    explicit Handle(HANDLE handle) noexcept : handle_(handle) {}
    ~Handle() {
        if (handle_ != nullptr) {
            CloseHandle(handle_);
        }
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    [[nodiscard]] HANDLE get() const noexcept { return handle_; }
    [[nodiscard]] explicit operator bool() const noexcept { return handle_ != nullptr; }
    /// True once the process has ended, or the event is set; waits for it, in milliseconds.
    [[nodiscard]] bool isSignalled(DWORD patience = 0) const noexcept {
        return WaitForSingleObject(handle_, patience) == WAIT_OBJECT_0;
    }

private:
    HANDLE handle_ = nullptr;
};

} // namespace host
