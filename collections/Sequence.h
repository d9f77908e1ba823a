#pragma once

#include "automation/Error.h"

#include <cstdint>
#include <limits>
#include <vector>

/// What the two collections share: a 32-bit count, and positions from 1.
namespace collections {

/// Appends an element; raises Overflow (6) when the 32-bit count is full.
template <typename T> void append(std::vector<T>& elements, T element) {
    if (elements.size() >= static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        automation::raise(automation::RunTimeError::Overflow);
    }
    elements.push_back(std::move(element));
}

/// The element at a 1-based index; raises SubscriptOutOfRange (9) outside 1 to the count.
template <typename T> const T& at(const std::vector<T>& elements, std::int32_t index) {
    if (index < 1 || static_cast<std::size_t>(index) > elements.size()) {
        automation::raise(automation::RunTimeError::SubscriptOutOfRange);
    }
    return elements[static_cast<std::size_t>(index) - 1];
}

} // namespace collections
