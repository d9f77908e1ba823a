#pragma once

#include "automation/Unmoved.h"

#include <filesystem>

namespace host {

/// A new folder among the system's temporary files, removed with all its content at the end of the scope.
class TemporaryFolder : automation::Unmoved {
public:
    /// Raises MachineFault where no folder can be made.
    TemporaryFolder();
    ~TemporaryFolder();

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

    /// Removes all of them, before the program ends without leaving its scopes. No other is made from then on: who
    /// tries to waits for the end.
    static void removeAll();
    /// The folder that holds all of them and nothing else, for a signal handler, which must not call `removeAll`; null
    /// as long as none has been made.
    [[nodiscard]] static const std::filesystem::path* root() noexcept;

private:
    std::filesystem::path path_;
};

/// Raises MachineFault where temporary files cannot be written, so that what fell short may have done so for that.
void requireTemporaryFiles();

} // namespace host
