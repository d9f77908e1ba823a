#pragma once

#include "automation/MemberTable.h"
#include "simulator/process/SavePrompt.h"
#include "simulator/win32/CallGate.h"
#include "simulator/win32/FrameWindow.h"
#include "simulator/win32/Troubles.h"

namespace simulator::standin {

/// What tests want of a PowerPoint and nobody can ask a real one for. It stands in the running-object table under
/// `controlClass`, and answers when PowerPoint is busy, too.
class ControlObject final : public automation::Published {
public:
    /// All must outlive the calls of this object.
    ControlObject(FrameWindow& window, SavePrompt& prompt, Troubles& troubles) noexcept
        : window_(window), prompt_(prompt), troubles_(troubles) {}

    /// The gate through which calls come; none until it is given.
    void setGate(automation::com::ComPtr<CallGate> gate) noexcept { gate_ = std::move(gate); }
    /// Lets go of what is about to go; members raise ServerUnavailable from then on.
    void end() noexcept { isOver_ = true; }

    [[nodiscard]] bool busy() const;
    void setBusy(bool busy) const;
    /// Refuses so many calls from now on.
    void refuse(std::int32_t calls) const;
    /// Refuses so many calls from the n-th call from now on, 1 being the next one; 0 stands for all calls to come.
    void refuseAtCall(std::int32_t n, std::int32_t calls) const;
    /// Calls that are still to be refused.
    [[nodiscard]] std::int32_t refusals() const;
    /// Calls refused so far.
    [[nodiscard]] std::int32_t refused() const;
    /// Calls delayed so far.
    [[nodiscard]] std::int32_t delayed() const;
    void openDialog(const std::u16string& title) const;
    [[nodiscard]] std::int32_t dialogs() const;
    void closeDialog() const;
    /// As Machine::answerSaving.
    void answerSaving(const std::u16string& answer) const;
    [[nodiscard]] std::int32_t slowness() const;
    void setSlowness(std::int32_t milliseconds) const;
    /// The n-th call from now takes so many milliseconds more.
    void delayCall(std::int32_t n, std::int32_t milliseconds) const;
    void dieAtCall(std::int32_t n) const;
    [[nodiscard]] std::int32_t calls() const;
    /// As CallGate::taken.
    [[nodiscard]] automation::Array remoteCalls() const;
    [[nodiscard]] std::int32_t escapes() const;
    [[nodiscard]] std::int32_t bits() const { return static_cast<std::int32_t>(sizeof(void*) * 8); }

    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    void requireRunning() const;

    FrameWindow& window_;
    SavePrompt& prompt_;
    Troubles& troubles_;
    automation::com::ComPtr<CallGate> gate_;
    bool isOver_ = false;
};

} // namespace simulator::standin
