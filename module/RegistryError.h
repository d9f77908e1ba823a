#pragma once

#include "automation/Error.h"

#include <string>
#include <string_view>

namespace k73053 {

/// Number of the error that says that a registry key cannot be opened: the automation object-error base and 1000.
inline constexpr std::int32_t registryErrorNumber = static_cast<std::int32_t>(0x80040000U + 1000U);

/// Raises the registry error for a key of the current user, named by its path. The text is both source and description.
[[noreturn]] inline void raiseRegistryError(std::u16string_view key) {
    std::u16string text =
        u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\rHKEY_CURRENT_USER\\";
    text += key;
    throw automation::Error(registryErrorNumber, text, text);
}

} // namespace k73053
