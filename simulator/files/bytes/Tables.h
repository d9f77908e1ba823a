#pragma once

#include <cstddef>
#include <optional>

namespace simulator::files {

/// The place, from 0, of the first element of a table that matches; nothing where none does.
template <typename Table, typename Match>
[[nodiscard]] std::optional<std::size_t> placeWhere(const Table& table, const Match& match) {
    std::size_t place = 0;
    for (const auto& element : table) {
        if (match(element)) {
            return place;
        }
        ++place;
    }
    return std::nullopt;
}

/// The place, from 0, of a value in a table; nothing where it is not in it.
template <typename Table, typename Value>
[[nodiscard]] std::optional<std::size_t> placeIn(const Table& table, const Value& value) {
    return placeWhere(table, [&value](const auto& element) { return element == value; });
}

} // namespace simulator::files
