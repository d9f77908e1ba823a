#pragma once

#include "host/bench/LargeDeck.h"
#include "host/bench/QuestionCost.h"
#include "host/command/Commands.h"

namespace host {

/// What `exercise-host bench` is asked for.
struct BenchRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t runs = 0;                ///< questions of a long run; 0 for what questions cost
    std::size_t slides = 50;             ///< of the large deck that is checked through COM
};

/// True where a figure is within its bound; says so where it is not.
[[nodiscard]] bool holds(bool isWithin, std::string_view what, std::ostream& out);

/// Prints the check of a deck and of those of 2, 4 and 8 times its slides, as `costOf` measures them; true where the
/// verdict is right, and calls and time of a word do not grow.
[[nodiscard]] bool
printGrowth(bench::DeckSize size,
            const std::function<bench::QuestionCost(const language::ScenarioFile& file, std::size_t times)>& costOf,
            std::ostream& out);

/// Prints what questions cost through COM, and a large deck's check beside the same check as a script; true where all
/// is within its bounds.
[[nodiscard]] bool printRemoteCosts(const BenchRequest& request, const CommandContext& at);

} // namespace host
