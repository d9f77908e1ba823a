#pragma once

#include "host/world/Files.h"

/// Files of this computer itself, as its user names them. All raise std::runtime_error, in words for him.
namespace host {

/// A file as a text in UTF-8 names it.
[[nodiscard]] std::filesystem::path pathOf(const std::string& name);

[[nodiscard]] Bytes contentsOf(const std::filesystem::path& path);

/// Writes a file anew.
void writeContents(const std::filesystem::path& path, std::string_view content);

/// Makes sure that a file can be written, and removes what it holds of earlier work: where the work that it is to tell
/// of does not come to its end, nobody takes the old for its outcome.
void clearForWriting(const std::filesystem::path& path);

} // namespace host
