#pragma once

#include <cstddef>
#include <optional>

namespace host::bench {

/// Memory that this process holds at the moment, in kilobytes; nothing where the system does not tell.
[[nodiscard]] std::optional<std::size_t> residentKilobytes();

} // namespace host::bench
