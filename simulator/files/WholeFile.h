#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace simulator::files {

/// The bytes of a file of the real disk; nothing where there is none that can be read.
template <typename Bytes = std::string>
[[nodiscard]] std::optional<Bytes> wholeFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (std::error_code failure; !file || !std::filesystem::is_regular_file(path, failure)) {
        return std::nullopt;
    }
    return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

} // namespace simulator::files
