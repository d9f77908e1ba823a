#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Names and marks of a presentation's file.
namespace simulator::powerpoint {

inline constexpr std::u16string_view currentUserStream = u"Current User";
inline constexpr std::u16string_view documentStream = u"PowerPoint Document";
/// The storage of a file for PowerPoint 95 too, in which that of PowerPoint 97 stands.
inline constexpr std::u16string_view dualStorage = u"PP97_DUALSTORAGE";
/// Where the stream of the current user says where the last edit stands.
inline constexpr std::size_t lastEditPlace = 16;
inline constexpr std::uint32_t plainToken = 0xE391C05F;
inline constexpr std::uint32_t encryptedToken = 0xF3D1C4DF;

/// An entry of the directory of objects: the number of the first, and above it how many follow each other.
inline constexpr std::uint32_t persistIdBits = 20;
inline constexpr std::uint32_t persistIdMask = 0xFFFFF;
inline constexpr std::size_t longestRun = 0xFFF;

/// Places in the record of an edit.
namespace userEdit {
inline constexpr std::size_t lastSlide = 0;
inline constexpr std::size_t editBefore = 8;
inline constexpr std::size_t directory = 12;
inline constexpr std::size_t document = 16;
inline constexpr std::size_t highestObject = 20;
inline constexpr std::size_t encryption = 28; ///< the last one, and only where the document is encrypted
} // namespace userEdit

/// Places in the record of the document.
inline constexpr std::size_t notesMasterPlace = 24;
inline constexpr std::size_t handoutMasterPlace = 28;

inline constexpr std::uint16_t shapesSchemeInstance = 1; ///< of the colours in force
inline constexpr std::uint16_t slideNameInstance = 3;
inline constexpr std::uint16_t slideViewInstance = 0;

} // namespace simulator::powerpoint
