#pragma once

#include "automation/Unmoved.h"

#include <condition_variable>
#include <iosfwd>
#include <mutex>
#include <string>
#include <thread>

namespace host {

/// Ends the program with ExitCode::Hung when something takes too long, and says what: nobody waits for what hangs.
class Watch : automation::Unmoved {
public:
    /// `out` must outlive this object.
    explicit Watch(std::ostream& out);
    ~Watch();

    /// From now on this is what takes its time, or nothing does where it has no name; what was before has come to its
    /// end.
    void next(std::string name);

private:
    void run();

    std::ostream& out_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::string name_;
    unsigned count_ = 0;
    bool isOver_ = false;
    std::thread thread_;
};

} // namespace host
