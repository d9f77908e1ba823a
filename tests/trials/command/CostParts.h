#pragma once

#include "tests/trials/command/Commands.h"
#include "tests/trials/cost/LargeDeck.h"
#include "tests/trials/cost/QuestionCost.h"

namespace trials {

/// What `trials cost` is asked for.
struct CostRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t runs = 0;                ///< questions of a long run; 0 for what questions cost
    std::optional<std::size_t> slides;   ///< of the large deck; in this process it alone is checked, once
};

/// Whether all figures are within their bounds; says where one is not.
struct Bounds {
    std::ostream& out;
    bool isGood = true;

    void hold(bool isWithin, std::string_view what);
};

/// Prints the check of a deck and of those of 2, 4 and 8 times its slides, as `costOf` measures them; true where the
/// verdict is right, and calls and time of a word do not grow.
[[nodiscard]] bool
printGrowth(cost::DeckSize size,
            const std::function<cost::QuestionCost(const language::ScenarioFile& file, std::size_t times)>& costOf,
            std::ostream& out);

/// Prints what questions cost through COM, and a large deck's check beside the same check as a script; true where all
/// is within its bounds.
[[nodiscard]] bool printRemoteCosts(const CostRequest& request, const CommandContext& at);

} // namespace trials
