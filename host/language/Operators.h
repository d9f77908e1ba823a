#pragma once

#include "automation/Value.h"

#include <span>

/// What the signs of the language do with values. Raises the run time's errors.
namespace host::language {

/// `&` joins texts; `+` and `-` reckon with numbers (whole ones as long as both are whole), `+` joins two texts.
[[nodiscard]] automation::Value apply(char16_t sign, const automation::Value& left, const automation::Value& right);

/// Objects are equal when they stand for the same, texts letter by letter, numbers by their value (in single precision
/// where one of them is single); an object compared with a plain value stands for the value of its default member.
[[nodiscard]] bool areEqual(const automation::Value& left, const automation::Value& right);

/// The colour of a red, a green and a blue part; parts above 255 count as 255.
[[nodiscard]] automation::Value colorOf(std::span<const automation::Value> parts);

} // namespace host::language
