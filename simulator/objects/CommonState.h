#pragma once

#include "simulator/document/Constants.h"

#include <optional>

namespace simulator {

/// The truth that all parts of a range share; mixed where they share none.
[[nodiscard]] constexpr MsoTriState commonState(std::optional<bool> truth) noexcept {
    return !truth ? msoTriStateMixed : *truth ? msoTrue : msoFalse;
}

} // namespace simulator
