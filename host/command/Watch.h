#pragma once

#include "automation/Unmoved.h"

#include <chrono>
#include <condition_variable>
#include <iosfwd>
#include <mutex>
#include <string>
#include <thread>

namespace host {

/// Ends the program with ExitCode::Hung when something takes too long, and says what: nobody waits for a scenario that
/// hangs.
class Watch : automation::Unmoved {
public:
    /// Far more than a scenario takes on a machine that has a lot to do.
    static constexpr std::chrono::seconds patience{180};

    /// `out` must outlive this object.
    Watch(std::chrono::seconds limit, std::ostream& out);
    ~Watch();

    /// From now on this is what takes its time; the one before has come to its end.
    void next(std::string name);

private:
    void run();

    std::chrono::seconds limit_;
    std::ostream& out_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::string name_;
    unsigned count_ = 0;
    bool isOver_ = false;
    std::thread thread_;
};

} // namespace host
