#pragma once

#include <cstdint>
#include <optional>

/// The effects by which slides come (PpEntryEffect), and the two numbers that files have for each.
namespace simulator::entryEffect {

struct Code {
    std::uint8_t type = 0;
    std::uint8_t direction = 0;

    friend bool operator==(const Code&, const Code&) = default;
};

/// True for none (0), and for the effects of PowerPoint 2003.
[[nodiscard]] bool isKnown(std::int32_t effect) noexcept;
/// Files know no cut: it is none there.
[[nodiscard]] Code codeOf(std::int32_t effect) noexcept;
/// Nothing for numbers that stand for no effect.
[[nodiscard]] std::optional<std::int32_t> effectOf(Code code) noexcept;

} // namespace simulator::entryEffect
