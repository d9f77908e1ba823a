#pragma once

#include <string>
#include <string_view>
#include <vector>

/// How texts are put for those who read them.
namespace host {

/// `1 move`, `2 moves`.
[[nodiscard]] std::string counted(std::size_t number, const std::string& what);

/// A text in quotes.
[[nodiscard]] std::string inQuotes(std::u16string_view text);
/// Texts in quotes, with commas between them; empty where there are none.
[[nodiscard]] std::string inQuotes(const std::vector<std::u16string>& texts);

/// A text on one line: control characters show as the signs that stand for them, a carriage return as `␍`.
[[nodiscard]] std::string onOneLine(std::u16string_view text);

/// So many UTF-16 units of a text, one less where the last would be half of a character.
[[nodiscard]] std::u16string_view beginningOf(std::u16string_view text, std::size_t most) noexcept;

/// A text without the blanks around it.
[[nodiscard]] std::string trimmed(const std::string& text);

/// A text whose lines but for the first stand two blanks further in.
[[nodiscard]] std::u16string indented(std::u16string_view text);

/// Puts something else in the place of every `what`.
void replaceAll(std::string& text, std::string_view what, std::string_view by);

} // namespace host
