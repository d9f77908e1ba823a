#pragma once

#include "host/world/World.h"

namespace host {

/// Worlds on this desktop: the registered library, driven through COM, with the registered PowerPoint in a process of
/// its own, the current user's registry and the disk. What a world changes of the last two it puts back in the end, or
/// the next run does.
///
/// The calling thread enters COM for as long as the maker lives; a PowerPoint that runs already must be the stand-in,
/// and is ended. Raises, in words for the user, where the desktop is not ready for this, and where the PowerPoint that
/// is registered is not a stand-in of so many bits; 0 takes any. Nobody outside sees the calls of the library: a world
/// with an observer has this program's own module in its place.
[[nodiscard]] WorldMaker makeComWorlds(std::int32_t powerPointBits);

} // namespace host
