#pragma once

#include "host/world/World.h"

namespace host {

/// Worlds on this desktop: the registered library, driven through COM, with the registered PowerPoint in a process of
/// its own, the current user's registry and the disk. What a world changes of the last two it puts back in the end.
///
/// Opening dialogs, being busy and being uninstalled are asked of the stand-in alone. The calling thread enters COM for
/// as long as the maker lives; a PowerPoint that runs already must be the stand-in, and is ended. Worlds raise where
/// they are to observe the calls of the library, which nobody outside can, and where the PowerPoint that is registered
/// is not a stand-in of so many bits; 0 takes any. Throws std::runtime_error where PowerPoint or the library is not
/// registered.
[[nodiscard]] WorldMaker makeComWorlds(std::int32_t powerPointBits);

} // namespace host
