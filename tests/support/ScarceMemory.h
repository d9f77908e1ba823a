#pragma once

#include "automation/Unmoved.h"

#include <cstddef>

namespace tests {

/// For the length of a scope, one allocation by `new` fails.
class ScarceMemory : automation::Unmoved {
public:
    /// `position` counts from 1.
    explicit ScarceMemory(std::size_t position) noexcept;
    ~ScarceMemory();

    /// True once the allocation has failed.
    [[nodiscard]] static bool hasStruck() noexcept;
};

} // namespace tests
