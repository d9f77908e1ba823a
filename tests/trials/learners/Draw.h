#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace trials::learners {

/// Random decisions, the same for the same number.
class Draw {
public:
    explicit Draw(std::uint32_t number) : random_(number) {}

    /// A number below `limit`, which is not 0.
    std::size_t below(std::size_t limit) {
        assert(limit != 0);
        return random_() % limit;
    }
    std::size_t between(std::size_t least, std::size_t most) {
        assert(least <= most);
        return least + below(most - least + 1);
    }
    std::uint64_t bits() {
        const std::uint64_t high = random_();
        return high << 32U | random_();
    }
    bool percent(std::size_t chance) { return below(100) < chance; }
    template <typename Items> const auto& of(const Items& items) {
        return *std::next(std::begin(items), static_cast<std::ptrdiff_t>(below(std::size(items))));
    }

private:
    std::mt19937 random_;
};

} // namespace trials::learners
