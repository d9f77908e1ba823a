#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace simulator::text {

/// Where the characters of a changed text come from: it keeps its front and its back, what lies between is new.
class Descent {
public:
    Descent(const std::u16string& before, const std::u16string& now);

    /// The place before the change; for a new character, that of the one at its left.
    [[nodiscard]] std::size_t of(std::size_t place) const noexcept;
    /// Where a character has gone; nothing for one that is gone.
    [[nodiscard]] std::optional<std::size_t> after(std::size_t place) const noexcept;
    /// Where what was kept of a stretch of characters stands, with what is new within; empty where nothing was kept.
    struct Stretch {
        std::size_t start = 0;
        std::size_t end = 0;
    };
    [[nodiscard]] Stretch after(const Stretch& stretch) const noexcept;

private:
    std::size_t before_;
    std::size_t now_;
    std::size_t front_ = 0;
    std::size_t back_ = 0;
};

} // namespace simulator::text
