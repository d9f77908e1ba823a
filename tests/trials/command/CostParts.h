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
    bool isExplained = false;            ///< the host also says why it reads what it reads of that check
    std::filesystem::path reader;        ///< of presentations, beside which the large deck's file is read instead
    std::size_t rounds = 0;              ///< of a small deck's checks beside others; 0 for all that is measured
};

/// Whether all figures are within their bounds; says where one is not.
struct Bounds {
    std::ostream& out;
    bool isGood = true;

    void hold(bool isWithin, std::string_view what);
};

/// How long a step takes by the clock.
template <typename Step> cost::Milliseconds timeOf(const Step& step) {
    const auto begun = std::chrono::steady_clock::now();
    step();
    return std::chrono::steady_clock::now() - begun;
}

/// Prints the check of a deck and of those of 2, 4 and 8 times its slides, as `costOf` measures them; true where the
/// verdict is right, and calls and time of a word do not grow.
[[nodiscard]] bool
printGrowth(cost::DeckSize size,
            const std::function<cost::QuestionCost(const language::ScenarioFile& file, std::size_t times)>& costOf,
            std::ostream& out);

/// Prints what the check of a deck takes of the library, of a bare client that makes the same calls and of a script
/// that reads the same, each once in every round; true where the library makes no other calls than the client, and
/// takes about as long.
[[nodiscard]] bool printBeside(const cost::DeckSize& size, std::size_t rounds, const CommandContext& at);

/// Prints what questions cost through COM, and a large deck's check beside the same check as a script; true where all
/// is within its bounds.
[[nodiscard]] bool printRemoteCosts(const CostRequest& request, const CommandContext& at);

/// Prints in what time the large deck's file is read, here and by the second reader.
void printReadingCost(const CostRequest& request, const CommandContext& at);

} // namespace trials
