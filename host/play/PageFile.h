#pragma once

#include <string_view>

namespace host {

/// A file of the page, part of the program.
struct PageFile {
    std::string_view name;
    std::string_view content;
};

/// A file of the page by its name, "index.html"; null where there is none.
[[nodiscard]] const PageFile* findPageFile(std::string_view name) noexcept;

} // namespace host
