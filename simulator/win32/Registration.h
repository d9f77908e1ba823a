#pragma once

#include "simulator/win32/Options.h"

namespace simulator::standin {

/// Registers this program as "PowerPoint.Application.11" for the programs that see a part of the registry. Registering
/// it again is fine, from another place too. Raises automation::Error where a PowerPoint that is not the stand-in is
/// registered, or where the registry cannot be written; nothing is changed then in the first case.
void registerServer(View view);

/// Takes the program out of a part of the registry, and PowerPoint's names with the last part. A real PowerPoint's stay
/// what they are.
void unregisterServer(View view);

/// True where PowerPoint's name stands for the stand-in, for programs of this one's width.
[[nodiscard]] bool isRegistered() noexcept;

} // namespace simulator::standin
