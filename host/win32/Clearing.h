#pragma once

#include <filesystem>

namespace host {

/// What becomes of what stands in a place of the disk that is given back.
struct Clearing {
    /// Afterwards nothing stands there. Raises where that fails.
    void (*vacate)(const std::filesystem::path& place);
    /// Afterwards an empty folder stands there; one that was there stays, since a program may stand in it. Raises where
    /// that fails.
    void (*empty)(const std::filesystem::path& folder);
};

/// Removes it, read-only files too. Waits a little for what is still held open.
extern const Clearing removing;

/// Moves it to a free name beside the place, and says so on the error output. No file is ever lost.
extern const Clearing keeping;

/// A name beside a file or folder that nothing has.
[[nodiscard]] std::filesystem::path freeNameBeside(const std::filesystem::path& place);

} // namespace host
