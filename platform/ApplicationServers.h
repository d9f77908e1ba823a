#pragma once

#include "automation/Object.h"

#include <string_view>

namespace platform {

/// Where automation applications come from.
class ApplicationServers {
public:
    virtual ~ApplicationServers() = default;

    /// The running instance registered under a programmatic identifier. Raises CannotCreateObject (429) where there is
    /// none.
    virtual automation::ObjectPtr attach(std::u16string_view programmaticId) = 0;
    /// A new instance. Raises CannotCreateObject (429), or the system's error.
    virtual automation::ObjectPtr create(std::u16string_view programmaticId) = 0;
};

} // namespace platform
