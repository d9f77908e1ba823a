#pragma once

#include "automation/Object.h"

#include <optional>
#include <vector>

/// The parameters of a member by their names: a text with blanks between them, in their order; empty where the member
/// takes its arguments by place alone.
namespace automation::parameters {

/// How many there are.
[[nodiscard]] constexpr std::size_t count(std::u16string_view parameters) noexcept {
    std::size_t blanks = 0;
    for (const char16_t c : parameters) {
        blanks += c == u' ' ? 1 : 0;
    }
    return parameters.empty() ? 0 : blanks + 1;
}

/// Place from 0 of a parameter, its case ignored; nothing where there is none of that name.
[[nodiscard]] std::optional<std::size_t> placeOf(std::u16string_view parameters, const Name& name) noexcept;

/// The arguments of a call whose last ones are named, in the order of the parameters; `Missing` stands for those left
/// out. The new value of a property stays the last. Raises NamedArgumentNotFound (448) for a name that is none, or is
/// given twice.
[[nodiscard]] std::vector<Value> inOrder(std::u16string_view parameters, std::span<const std::u16string_view> names,
                                         Access access, std::span<Value> arguments);

} // namespace automation::parameters
