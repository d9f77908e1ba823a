#pragma once

#include "simulator/files/bytes/Bytes.h"

#include <array>
#include <span>

namespace simulator::text {

/// A part of how text looks, as a run of a file says it: some bits that tell that it is there, so many bytes.
struct Field {
    std::uint32_t bits;
    std::uint8_t bytes; ///< 0 for tabulator stops, which have a length of their own
};

/// Places in the list of character fields.
namespace character {
enum : std::uint8_t { Style, Font, AsianFont, AnsiFont, SymbolFont, Size, Color, Position };
inline constexpr std::array<Field, 8> fields{
    {{0xFFFF, 2}, {0x10000, 2}, {0x200000, 2}, {0x400000, 2}, {0x800000, 2}, {0x20000, 2}, {0x40000, 4}, {0x80000, 2}}};
inline constexpr std::uint32_t bold = 1;
inline constexpr std::uint32_t italic = 2;
inline constexpr std::uint32_t underline = 4;
inline constexpr std::uint32_t shadow = 0x10;
inline constexpr std::uint32_t uprightNumbers = 0x80;
inline constexpr std::uint32_t emboss = 0x200;
inline constexpr std::uint32_t extension = 0x3C00; ///< the place in the list of later versions' formats
inline constexpr unsigned extensionShift = 10;
} // namespace character

/// Places in the list of paragraph fields.
namespace paragraph {
enum : std::uint8_t {
    BulletFlags,
    BulletCharacter,
    BulletFont,
    BulletSize,
    BulletColor,
    Alignment,
    SpaceWithin,
    SpaceBefore,
    SpaceAfter,
    LeftMargin,
    Indent,
    DefaultTab,
    Tabs,
    FontAlignment,
    Wrap,
    Direction
};
inline constexpr std::array<Field, 16> fields{{{0xF, 2},
                                               {0x80, 2},
                                               {0x10, 2},
                                               {0x40, 2},
                                               {0x20, 4},
                                               {0x800, 2},
                                               {0x1000, 2},
                                               {0x2000, 2},
                                               {0x4000, 2},
                                               {0x100, 2},
                                               {0x400, 2},
                                               {0x8000, 2},
                                               {0x100000, 0},
                                               {0x10000, 2},
                                               {0xE0000, 2},
                                               {0x200000, 2}}};
inline constexpr std::uint32_t hasBullet = 1;
} // namespace paragraph

/// How a run or a level of text differs from what it inherits.
struct TextException {
    std::uint32_t mask = 0;
    std::array<std::uint32_t, 16> values{};
    std::string tabs; ///< tabulator stops with their number, as they stand in the file

    [[nodiscard]] bool has(const Field& field) const noexcept { return (mask & field.bits) != 0; }
    /// Sets a field; `bits` are those of the mask that say so.
    void set(std::size_t place, std::uint32_t bits, std::uint32_t value) noexcept {
        mask |= bits;
        values.at(place) = value;
    }

    [[nodiscard]] static TextException read(files::ByteReader& in, std::span<const Field> fields);
    void write(files::ByteWriter& out, std::span<const Field> fields) const;

    friend bool operator==(const TextException&, const TextException&) = default;
};

} // namespace simulator::text
