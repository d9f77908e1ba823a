#pragma once

#include "platform/Registry.h"

#include <string>

namespace k73053 {

/// The folder of the exercise's templates: the sub-folder "ZOR Modèles" of the user's templates, as Office's settings
/// give them. Ends with a backslash unless the user's templates folder is that sub-folder already. Raises the registry
/// error where a setting cannot be read.
[[nodiscard]] std::u16string templatesFolder(platform::Registry& registry);

} // namespace k73053
