#pragma once

#include <cstddef>
#include <optional>

namespace trials::cost {

/// What this process holds of the system at the moment; nothing where the system does not tell.
struct ProcessUse {
    std::optional<std::size_t> kilobytes; ///< of resident memory
    std::optional<std::size_t> handles;   ///< of files and other things of the system
};

[[nodiscard]] ProcessUse processUse();

} // namespace trials::cost
