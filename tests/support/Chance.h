#pragma once

#include "tests/trials/learners/Draw.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace tests {

/// Random decisions that are the same in every run, unless the environment variable CHANCE says where they begin;
/// printed, so that what they find can be found again.
class Chance : public trials::learners::Draw {
public:
    Chance() : Draw(begin()) {}

    bool oneIn(std::size_t many) { return below(many) == 0; }

private:
    static std::uint32_t begin() {
        const char* const said = std::getenv("CHANCE");
        const std::uint32_t number = said != nullptr ? static_cast<std::uint32_t>(std::stoul(said)) : 1;
        std::cout << "random numbers from CHANCE=" << number << std::endl;
        return number;
    }
};

} // namespace tests
