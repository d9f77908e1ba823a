#pragma once

#include "automation/Error.h"
#include "automation/Unmoved.h"

#include "automation/com/Patience.h"

#include <utility>

namespace automation::com {

/// An EXCEPINFO that owns its texts.
class ExceptionInfo : public EXCEPINFO, Unmoved {
public:
    ExceptionInfo() noexcept : EXCEPINFO() {}
    ~ExceptionInfo() { clear(); }

    void clear() noexcept;
};

/// The error that a failing call stands for: a run-time error for what IDispatch itself refuses, any other status by
/// its own number with the system's text.
[[nodiscard]] Error errorOf(HRESULT status);

/// The error that a member raised. What a server would only fill in when asked is not asked for.
[[nodiscard]] Error errorOf(const EXCEPINFO& raised);

/// Raises the error of a failing call.
void check(HRESULT status);

/// The status by which an error leaves the library: 0x800A0000 + n for run-time numbers, other numbers as they are. The
/// number 0, which would mean success, leaves as 5 does.
[[nodiscard]] HRESULT statusOf(const Error& error) noexcept;

/// Leaves the thread without an error object: an earlier one must not be taken for that of a call which says no more
/// than its status.
void forgetError() noexcept;

/// The exception being handled as a status, with the thread's error object set to say the same; where `raised` is
/// given, it is filled alike and the status is DISP_E_EXCEPTION. To be called in a handler.
[[nodiscard]] HRESULT reportCurrent(EXCEPINFO* raised = nullptr) noexcept;

/// Runs what a client has called at the border to COM, from which nothing but a status leaves; an exception as
/// `reportCurrent` gives it.
template <typename Call> [[nodiscard]] HRESULT guarded(Call&& call, EXCEPINFO* raised = nullptr) noexcept {
    try {
        const Operation operation;
        return std::forward<Call>(call)();
    } catch (...) {
        return reportCurrent(raised);
    }
}

} // namespace automation::com
