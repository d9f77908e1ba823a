#pragma once

#include "automation/Unmoved.h"
#include "host/win32/Handle.h"

#include <string>
#include <vector>

namespace host {

/// Keeps a process of the stand-in waiting, so that creating PowerPoint takes no time. Does nothing where a real
/// PowerPoint is registered.
class Standby : automation::Unmoved {
public:
    Standby();
    ~Standby();

    /// Sees to it that one waits, and that another is on its way.
    void prepare();

private:
    struct Waiting {
        Handle process;
        DWORD thread = 0; ///< its main thread
        Handle ready;     ///< set while it can be created
        bool wasReady = false;
    };

    /// Forgets those that have become PowerPoint, or have ended.
    void forgetTaken();
    void start();
    void waitForOne();

    std::wstring program_; ///< empty where there is no stand-in
    Handle job_;           ///< ends them where this process could not
    std::vector<Waiting> waiting_;
    /// Held, so that no other process gets the number of one of these: Wine 8 takes the two for the same where an
    /// object of the first was released after its end, and has calls to the second fail (0x800706BF).
    std::vector<Handle> forgotten_;
    unsigned started_ = 0;
};

} // namespace host
