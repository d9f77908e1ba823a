#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Texts are UTF-16 inside; UTF-8 is met at the edges only (the terminal, scenario files, native file names).
namespace automation {

/// The UTF-8 form of a text; a lone surrogate becomes U+FFFD.
[[nodiscard]] std::string toUtf8(std::u16string_view text);

/// The UTF-16 form of a UTF-8 text; an ill-formed byte becomes U+FFFD.
[[nodiscard]] std::u16string fromUtf8(std::string_view text);

/// The text in lower case, letter by letter as Unicode has it for Latin (to U+024F, and U+1E00 to U+1EFF), Greek,
/// Cyrillic (to U+052F) and Armenian letters; others stay as they are.
[[nodiscard]] std::u16string lowerCase(std::u16string_view text);

/// One UTF-16 unit in lower case.
[[nodiscard]] char16_t lowerCase(char16_t letter) noexcept;

/// True when two texts differ by case at most, as file names and registry keys are compared.
[[nodiscard]] bool equalIgnoringCase(std::u16string_view left, std::u16string_view right) noexcept;

/// A whole number in decimal, without blanks or leading zeros.
[[nodiscard]] std::u16string decimal(long long number);

/// A 32-bit number as eight hexadecimal digits, as errors of the system are written.
[[nodiscard]] std::u16string hexadecimal(std::int32_t number);

} // namespace automation
