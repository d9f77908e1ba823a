#pragma once

#include "automation/Error.h"

#include <concepts>
#include <limits>

namespace automation {

/// A whole number in a smaller type; raises Overflow (6) where it does not fit.
template <std::signed_integral To> [[nodiscard]] constexpr To narrow(std::int64_t number) {
    if (number < std::numeric_limits<To>::min() || number > std::numeric_limits<To>::max()) {
        raise(RunTimeError::Overflow);
    }
    return static_cast<To>(number);
}

/// Adds to a counter of its own type; raises Overflow (6) and leaves it where the sum does not fit.
template <std::signed_integral Counter> constexpr void increase(Counter& counter, Counter by = 1) {
    counter = narrow<Counter>(std::int64_t{counter} + by);
}

} // namespace automation
