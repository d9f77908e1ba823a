#pragma once

#include "simulator/files/FilePresentationStore.h"
#include "simulator/win32/ControlObject.h"
#include "simulator/win32/Options.h"

namespace simulator::standin {

/// One run of the stand-in, from its start to the end of its PowerPoint. Needs a thread that has entered COM as a
/// single-threaded apartment.
class StandIn {
public:
    StandIn();
    ~StandIn();
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    StandIn(StandIn&&) = delete;
    StandIn& operator=(StandIn&&) = delete;

    /// Where another one runs, brings that one to the front, as PowerPoint does, and returns; otherwise serves until
    /// PowerPoint ends.
    void run(const Options& options);

private:
    [[nodiscard]] static bool showRunning();
    void publish();
    void withdraw();
    void show(const Options& options);
    void pump();

    Settings settings_;
    FilePresentationStore store_;
    FrameWindow window_;
    SessionPtr session_;
    Troubles troubles_;
    std::shared_ptr<ControlObject> control_;
    automation::com::ComPtr<IDispatch> controlDispatch_;
    automation::com::ComPtr<IDispatch> application_;
    automation::com::ComPtr<CallGate> gate_;
    DWORD applicationEntry_ = 0;
    DWORD controlEntry_ = 0;
    DWORD classEntry_ = 0;
};

} // namespace simulator::standin
