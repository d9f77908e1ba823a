#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator::compound {

/// Sectors of one size with the table that chains them. A sector may be claimed once only, so that no chain runs in a
/// circle and none shares sectors with another.
class SectorTable {
public:
    /// The bytes must outlive this object; `what` names the sectors in messages.
    SectorTable(std::string_view sectors, std::size_t sectorSize, std::string_view what)
        : sectors_(sectors), sectorSize_(sectorSize), what_(what), claimed_(sectors.size() / sectorSize) {}

    void setNext(std::vector<std::uint32_t> next) noexcept { next_ = std::move(next); }
    [[nodiscard]] std::size_t count() const noexcept { return claimed_.size(); }

    /// The bytes of one sector, for `purpose`.
    [[nodiscard]] std::string_view claim(std::uint32_t sector, std::string_view purpose);
    /// The bytes of a chain, whole sectors.
    [[nodiscard]] std::string chain(std::uint32_t first, std::string_view purpose);
    /// The first bytes of a chain, which must be so long at least.
    [[nodiscard]] std::string chain(std::uint32_t first, std::uint64_t size, std::string_view purpose);

private:
    /// As many sectors of a chain as hold so many bytes; where it goes on behind them does not matter.
    [[nodiscard]] std::string chainUpTo(std::uint32_t first, std::uint64_t size, std::string_view purpose);
    [[noreturn]] void fail(std::uint32_t sector, std::string_view purpose, std::string_view why) const;

    std::string_view sectors_;
    std::size_t sectorSize_;
    std::string_view what_;
    std::vector<bool> claimed_;
    std::vector<std::uint32_t> next_;
};

} // namespace simulator::compound
