#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What readers and writers of compound files must agree on.
namespace simulator::compound {

inline constexpr std::string_view signature{"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8};
inline constexpr std::uint16_t littleEndian = 0xFFFE;

/// Marks in place of the number of a next sector.
inline constexpr std::uint32_t highestSector = 0xFFFFFFFA;
inline constexpr std::uint32_t difatSector = 0xFFFFFFFC;
inline constexpr std::uint32_t fatSector = 0xFFFFFFFD;
inline constexpr std::uint32_t endOfChain = 0xFFFFFFFE;
inline constexpr std::uint32_t freeSector = 0xFFFFFFFF;
/// Mark in place of the number of a directory entry.
inline constexpr std::uint32_t noEntry = 0xFFFFFFFF;

inline constexpr std::size_t headerFatSectors = 109;
inline constexpr std::uint32_t miniSectorSize = 64;
inline constexpr std::uint32_t miniStreamLimit = 4096; ///< shorter streams stand in the mini stream
inline constexpr std::size_t entrySize = 128;
inline constexpr std::size_t nameUnits = 32; ///< of an entry's name, with its ending zero

enum class EntryKind : std::uint8_t { Unused = 0, Storage = 1, Stream = 2, Root = 5 };

} // namespace simulator::compound
