#pragma once

#include "automation/Unmoved.h"
#include "simulator/files/FilePresentationStore.h"
#include "simulator/win32/ControlObject.h"
#include "simulator/win32/Options.h"

namespace simulator::standin {

/// PowerPoint running in this process, seen by others: its main window, its application object and controls in the
/// running-object table. Needs a thread that has entered COM as a single-threaded apartment.
class PowerPointRun : automation::Unmoved {
public:
    /// Starts it, invisible. `onEnd` is called when it has ended.
    PowerPointRun(const Options& options, std::function<void()> onEnd);
    ~PowerPointRun();

    [[nodiscard]] const automation::com::ComPtr<IDispatch>& application() const noexcept { return application_; }
    /// Shows the window as a user's start does.
    void show(bool isMinimised);
    /// True where a message was a key that a dialog has taken.
    [[nodiscard]] bool takeDialogKey(MSG& message) const { return window_.takeDialogKey(message); }

private:
    void publish();
    void withdraw();

    Settings settings_;
    FilePresentationStore store_;
    FrameWindow window_;
    ProcessPtr process_;
    Troubles troubles_;
    std::shared_ptr<ControlObject> control_;
    automation::com::ComPtr<IDispatch> controlDispatch_;
    automation::com::ComPtr<IDispatch> application_;
    automation::com::ComPtr<CallGate> gate_;
    DWORD applicationEntry_ = 0;
    DWORD controlEntry_ = 0;
};

} // namespace simulator::standin
