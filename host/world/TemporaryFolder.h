#pragma once

#include "automation/Unmoved.h"

#include <filesystem>

namespace host {

/// A new folder among the system's temporary files, removed with all its content at the end of the scope.
class TemporaryFolder : automation::Unmoved {
public:
    TemporaryFolder();
    ~TemporaryFolder();

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace host
