#pragma once

#include "simulator/win32/PowerPointRun.h"

#include <optional>

namespace simulator::standin {

/// Offers PowerPoint to automation clients and serves until it ends. Needs a thread that has entered COM as a
/// single-threaded apartment.
class Server {
public:
    explicit Server(Options options) : options_(std::move(options)) {}

    /// Where a user's start finds PowerPoint running, brings that one to the front, as PowerPoint does, and returns.
    void run();

private:
    class Factory;

    /// PowerPoint, started in this process where this is not done yet.
    PowerPointRun& powerPoint();
    /// What a client that creates PowerPoint is given: of PowerPoint there is never more than one.
    [[nodiscard]] automation::com::ComPtr<IDispatch> application();
    /// No client creates it from here any more.
    void withdraw();
    void pump();
    void deliver(MSG& message) const;

    Options options_;
    std::optional<PowerPointRun> powerPoint_;
    DWORD classEntry_ = 0;
};

} // namespace simulator::standin
