#pragma once

#include "host/world/Files.h"

/// Files of this computer itself, as its user names them.
namespace host {

/// A file as a text in UTF-8 names it.
[[nodiscard]] std::filesystem::path pathOf(const std::string& name);

/// Raises std::runtime_error, in words for the user: there may be no such file, or none that can be read.
[[nodiscard]] Bytes contentsOf(const std::filesystem::path& path);

/// Writes a file anew. Raises MachineFault where it cannot be written to its end.
void writeContents(const std::filesystem::path& path, std::string_view content);

/// Appends a file unless it is among them, by this name or another.
void addOnce(std::vector<std::filesystem::path>& files, const std::filesystem::path& file);

} // namespace host
