#pragma once

#include "automation/Value.h"

#include <span>

namespace host::language {

/// How many dimensions an array may have.
inline constexpr std::int32_t mostDimensions = 60;

/// Where a dimension of an array begins and ends.
struct Dimension {
    std::int32_t first = 0;
    std::int32_t last = -1;
};

/// An array, or an array of arrays for more dimensions than one, whose every element is `initial`. Raises
/// SubscriptOutOfRange (9) for a dimension that ends before it begins, OutOfMemory (7) for more than a million
/// elements.
[[nodiscard]] automation::Value arrayOf(std::span<const Dimension> dimensions, const automation::Value& initial);

/// The element at these indices, one for each dimension; `firsts` says where dimensions begin that do not begin at 0.
/// Raises SubscriptOutOfRange (9) where there is none, TypeMismatch (13) for what is no array.
[[nodiscard]] const automation::Value& elementOf(const automation::Value& array,
                                                 std::span<const automation::Value> indices,
                                                 std::span<const std::int32_t> firsts);
/// Gives the element another value; raises the same.
void setElement(automation::Value& array, std::span<const automation::Value> indices,
                std::span<const std::int32_t> firsts, automation::Value value);

/// Gives `array` the elements of another that stand at the same places.
void keepElements(automation::Value& array, const automation::Value& from);

} // namespace host::language
