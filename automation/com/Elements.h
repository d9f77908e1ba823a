#pragma once

#include "automation/Elements.h"
#include "automation/com/ComPtr.h"
#include "automation/com/ServerSession.h"

#include "automation/com/Ole.h"

namespace automation::com {

/// The elements of a collection as COM asks for them. They are given once: asking from the first one anew, or for a
/// copy, is refused.
[[nodiscard]] ComPtr<IEnumVARIANT> enumVariantOf(std::shared_ptr<Elements> elements);

/// Elements that came from COM. `session` is that of the server that they come from.
[[nodiscard]] std::shared_ptr<Elements> elementsOf(ComPtr<IEnumVARIANT> elements, ServerSessionPtr session);

} // namespace automation::com
