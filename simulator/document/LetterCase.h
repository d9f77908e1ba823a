#pragma once

#include "simulator/document/TextStory.h"

namespace simulator {

/// True for letters and digits of the alphabets that PowerPoint's Western versions know.
[[nodiscard]] bool isLetterOrDigit(char16_t character) noexcept;

/// One UTF-16 unit in capitals.
[[nodiscard]] char16_t upperCase(char16_t letter) noexcept;

/// Changes the case of a span's letters, which keep their formats.
void changeCase(TextStory& story, Span span, PpChangeCase change);

} // namespace simulator
