#pragma once

#include "automation/Unmoved.h"
#include "host/win32/Journal.h"
#include "host/win32/Standby.h"

#include <objbase.h>

#include <optional>

namespace host {

/// This desktop, made ready for scenarios, with what they share.
class Desktop {
public:
    /// Ends a stand-in that runs, and gives back what an earlier run has left, which it says on the error output.
    /// Raises, in words for the user, where another run or a real PowerPoint uses the desktop, and where the module or
    /// PowerPoint is not registered, or PowerPoint is not a stand-in of so many bits; 0 takes any.
    explicit Desktop(std::int32_t powerPointBits);

    [[nodiscard]] Journal& journal() noexcept { return journal_; }
    /// Sees to it that PowerPoint is created quickly, and that none runs that a scenario has left.
    void makeReady();

private:
    /// COM for the thread.
    struct Apartment : automation::Unmoved {
        Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
        ~Apartment() { CoUninitialize(); }
    };

    Apartment apartment_;
    Journal journal_;
    std::optional<Standby> standby_;
};

} // namespace host
