#pragma once

#include "automation/com/ComObject.h"

#include <array>
#include <functional>
#include <limits>

namespace simulator::standin {

/// Refuses calls from other processes while PowerPoint is busy, as a program does that shows its user something: before
/// they reach an object. Calls to one object always come through.
class CallGate final : public automation::com::ComObject<IMessageFilter> {
public:
    /// Calls of invocations, names, interfaces, released references and anything else.
    using Counts = std::array<std::int32_t, 5>;

    static constexpr std::int32_t withoutEnd = std::numeric_limits<std::int32_t>::max();

    /// `always` is the object whose calls are never refused; it must outlive this object. `isModal` says whether a
    /// dialog waits for its user, who is asked first.
    CallGate(IUnknown* always, std::function<bool()> isModal) : always_(always), isModal_(std::move(isModal)) {}

    /// Refuses so many calls from now on.
    void refuse(std::int32_t calls) noexcept { refusals_ = calls; }
    /// Calls that are still to be refused.
    [[nodiscard]] std::int32_t refusals() const noexcept { return refusals_; }
    /// Calls refused so far.
    [[nodiscard]] std::int32_t refused() const noexcept { return refused_; }
    /// Those of other processes taken so far.
    [[nodiscard]] const Counts& taken() const noexcept { return taken_; }
    [[nodiscard]] bool isBusy() const noexcept { return refusals_ > 0; }

    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD type, HTASK task, DWORD tick,
                                               LPINTERFACEINFO call) noexcept override;
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK task, DWORD tick, DWORD type) noexcept override;
    DWORD STDMETHODCALLTYPE MessagePending(HTASK task, DWORD tick, DWORD type) noexcept override;

private:
    IUnknown* always_;
    std::function<bool()> isModal_;
    std::int32_t refusals_ = 0;
    std::int32_t refused_ = 0;
    Counts taken_{};
};

} // namespace simulator::standin
