#pragma once

#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

namespace tests {

/// Random numbers that are the same in every run, unless the environment variable CHANCE says where they begin;
/// printed, so that what they find can be found again.
class Chance {
public:
    Chance() : random_(begin()) {}

    /// A number below `limit`, which is not 0.
    std::size_t below(std::size_t limit) { return random_() % limit; }
    bool oneIn(std::size_t many) { return below(many) == 0; }
    template <typename Items> const auto& of(const Items& items) { return items[below(std::size(items))]; }
    std::uint64_t bits() { return random_(); }

private:
    static std::uint64_t begin() {
        const char* const said = std::getenv("CHANCE");
        const std::uint64_t number = said != nullptr ? std::stoull(said) : 1;
        std::cout << "random numbers from CHANCE=" << number << std::endl;
        return number;
    }

    std::mt19937_64 random_;
};

} // namespace tests
