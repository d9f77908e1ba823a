#pragma once

#include "host/reason/Path.h"

namespace host::reason {

/// The value of a member in words: a constant by its name, a colour by its parts, a text in quotes, cut where it is
/// long.
[[nodiscard]] std::string told(const Path& path, const automation::Value& value);

/// The same where lengths are given in points and in centimetres.
[[nodiscard]] std::string toldWithUnits(const Path& path, const automation::Value& value);

/// A text as a sentence: its first letter is a capital, a full stop is at its end.
[[nodiscard]] std::string sentence(std::string text);

} // namespace host::reason
