#pragma once

#include "automation/Error.h"

#include <optional>

namespace tests {

/// Number of the error that an action raises; nothing where it raises none.
template <typename Action> std::optional<std::int32_t> errorOf(const Action& action) {
    try {
        action();
        return std::nullopt;
    } catch (const automation::Error& error) {
        return error.number();
    }
}

} // namespace tests
