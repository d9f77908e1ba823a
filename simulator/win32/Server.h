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

    /// PowerPoint, started where it does not run yet.
    PowerPointRun& powerPoint();
    void end();
    void pump();
    void deliver(MSG& message) const;

    Options options_;
    std::optional<PowerPointRun> powerPoint_;
    DWORD classEntry_ = 0;
};

} // namespace simulator::standin
