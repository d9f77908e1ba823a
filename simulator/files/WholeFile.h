#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace simulator::files {

/// The bytes of a file of the real disk; nothing where there is none that can be opened. Raises
/// std::ios_base::failure where it cannot be read.
[[nodiscard]] inline std::optional<std::string> wholeFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::error_code failure;
    if (!file || !std::filesystem::is_regular_file(path, failure)) {
        return std::nullopt;
    }
    // One byte more than there are: a file that says that it has none may be one that cannot be read.
    std::string bytes(static_cast<std::size_t>(std::filesystem::file_size(path)) + 1, '\0');
    const std::streamsize read = file.rdbuf()->sgetn(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(read));
    return bytes;
}

} // namespace simulator::files
