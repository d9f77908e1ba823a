#pragma once

#include "automation/Error.h"

namespace host {

/// Raises an error of the host itself.
[[noreturn]] inline void refuse(std::u16string text,
                                automation::RunTimeError number = automation::RunTimeError::CannotCreateObject) {
    throw automation::Error(static_cast<std::int32_t>(number), u"exercise-host", std::move(text));
}

} // namespace host
