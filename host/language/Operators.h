#pragma once

#include "host/language/Ast.h"

#include <span>

/// What the signs of the language do with values. Raises the run time's errors.
namespace host::language {

/// `&` joins texts; `+`, `-`, `*` and `Mod` reckon with numbers (whole ones as long as both are whole), `+` joins two
/// texts. Comparisons are those of macros: two texts letter by letter, a text and a number by the number that the text
/// stands for, True as -1. `And` and `Or` combine Booleans, or the bits of numbers; `Is` compares objects by identity.
/// An object stands for the value of its default member but for `Is`.
[[nodiscard]] automation::Value apply(Operator sign, const automation::Value& left, const automation::Value& right);
/// `-` and `Not`.
[[nodiscard]] automation::Value apply(Operator sign, const automation::Value& operand);

/// The number that a value is for a loop that counts.
[[nodiscard]] automation::Value plainNumber(const automation::Value& value);

/// Objects are equal when they stand for the same, texts letter by letter, numbers by their value (in single precision
/// where one of them is single); an object compared with a plain value stands for the value of its default member.
[[nodiscard]] bool areEqual(const automation::Value& left, const automation::Value& right);

/// The colour of a red, a green and a blue part; parts above 255 count as 255.
[[nodiscard]] automation::Value colorOf(std::span<const automation::Value> parts);

} // namespace host::language
