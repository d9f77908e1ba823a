#pragma once

#include "simulator/document/HeadersFooters.h"
#include "simulator/files/records/Record.h"

#include <optional>

namespace simulator::powerpoint {

/// Whose headers and footers a record has: its instance.
namespace headersFooters {
inline constexpr std::uint16_t ofSheet = 0;
inline constexpr std::uint16_t ofSlides = 3;
inline constexpr std::uint16_t ofPages = 4;
} // namespace headersFooters

/// The headers and footers among the records of a slide or of the document; nothing where there are none.
[[nodiscard]] std::optional<HeadersFooters> readHeadersFooters(const records::Record& owner, std::uint16_t instance);
/// Gives a slide or the document these headers and footers in the place of those that it has.
void putHeadersFooters(records::Record& owner, std::uint16_t instance, const std::optional<HeadersFooters>& all);

} // namespace simulator::powerpoint
