#pragma once

#include "automation/Value.h"

#include <span>

namespace host::language {

/// How many dimensions an array may have.
inline constexpr std::int32_t mostDimensions = 60;

/// What a variable holds.
struct Variable {
    automation::Value value;
    std::vector<std::int32_t> firsts; ///< of an array, where its dimensions begin; those without begin at 0
};

/// Where a dimension of an array begins and ends.
struct Dimension {
    std::int32_t first = 0;
    std::int32_t last = -1;
};

/// An array, or an array of arrays for more dimensions than one, whose every element is `initial`. Raises
/// SubscriptOutOfRange (9) for a dimension that ends before it begins, OutOfMemory (7) for more than a million
/// elements.
[[nodiscard]] Variable arrayOf(std::span<const Dimension> dimensions, const automation::Value& initial);

/// A dimension of an array, from 1. Raises SubscriptOutOfRange (9) where it has none, TypeMismatch (13) for what is no
/// array.
[[nodiscard]] Dimension dimensionOf(const Variable& array, std::int32_t dimension);

/// The element at these indices, one for each dimension. Raises SubscriptOutOfRange (9) where there is none,
/// TypeMismatch (13) for what is no array.
[[nodiscard]] const automation::Value& elementOf(const Variable& array, std::span<const automation::Value> indices);
/// Gives the element another value; raises the same.
void setElement(Variable& array, std::span<const automation::Value> indices, automation::Value value);

/// Gives `array` the elements of another that stand at the same places. Raises SubscriptOutOfRange (9) where their
/// dimensions do not begin alike.
void keepElements(Variable& array, const Variable& from);

} // namespace host::language
