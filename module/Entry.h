#pragma once

#include "automation/Unmoved.h"

#include <string_view>

namespace k73053 {

/// An operation of the host's, for as long as it runs. The calls that it makes let messages through, and with them
/// other calls of the host's: those find the module busy, whichever `Module` of the process they reach.
class Entry : automation::Unmoved {
public:
    /// Raises 8001010A (busy, try again) through the error report, under the name of the operation refused, where
    /// another one runs.
    explicit Entry(std::u16string_view operation);
    ~Entry();
};

} // namespace k73053
