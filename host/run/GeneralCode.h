#pragma once

#include <string_view>

namespace host {

/// What the module says by the code of a general error, whatever the question, in words; empty for what is no such
/// code.
[[nodiscard]] std::string_view meaningOfGeneralCode(std::u16string_view code) noexcept;

} // namespace host
