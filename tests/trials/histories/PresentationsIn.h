#pragma once

#include <algorithm>
#include <filesystem>
#include <vector>

namespace trials::histories {

/// The presentations of a folder by name; none where its path is empty.
[[nodiscard]] inline std::vector<std::filesystem::path> presentationsIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> found;
    for (const auto& entry :
         folder.empty() ? std::filesystem::directory_iterator() : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".ppt") {
            found.push_back(entry.path());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace trials::histories
