#pragma once

#include "host/world/World.h"
#include "tests/trials/Host.h"
#include "tests/trials/cost/LargeDeck.h"

namespace trials::cost {

/// What the number of calls depends on, as it is in a world once a question is prepared.
struct Surroundings {
    Surroundings(World& world, std::int32_t question);

    std::size_t bars = 0;           ///< command bars
    std::size_t slides = 0;         ///< of the active presentation
    std::vector<std::size_t> items; ///< of each shape of the question's slide; 0 where it is no group
    std::size_t words = 0;          ///< of question 308's text
    std::size_t wordsSought = 0;    ///< of them, those whose colour is kept
};

/// Calls that a question takes where each step is taken as it is described, and none beside. The host brings
/// PowerPoint, without a presentation, and the first moves of the question's scenario file have been made.
struct PrescribedCalls {
    std::size_t initQuestion;
    std::size_t prepare; ///< of InitQuestion's
    std::size_t testePoint;
    std::size_t fermer;
};

/// Calls that keep the learner's command bars as they were, beside those prescribed.
struct KeepingCalls {
    std::size_t initQuestion; ///< how the bars stand is read before they are arranged
    std::size_t fermer;       ///< they are put back
};

/// `slidesChecked` is the number of slides when the learner has worked.
[[nodiscard]] PrescribedCalls prescribedCalls(std::int32_t question, const Surroundings& surroundings,
                                              std::size_t slidesChecked);

/// For a PowerPoint that has just been started: of the bars only the task pane does not stand as an exercise has it.
[[nodiscard]] KeepingCalls keepingCalls(const Surroundings& surroundings);

/// Calls to PowerPoint that a TestePoint of question 306 takes on a large deck.
[[nodiscard]] std::size_t prescribedAutomationCalls(const DeckSize& deck);

} // namespace trials::cost
