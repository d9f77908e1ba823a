#pragma once

#include "host/language/Ast.h"
#include "tests/trials/Host.h"

namespace trials::cost {

/// The size of a presentation full of text.
struct DeckSize {
    std::size_t slides = 50;
    std::size_t shapesOnSlide = 10;
    std::size_t wordsInShape = 100;

    [[nodiscard]] std::size_t words() const noexcept { return slides * shapesOnSlide * wordsInShape; }
};

/// A scenario file for question 306 with a course of that size, in which the learner has nothing left to do: the word
/// to be written stands there four times, the one to be replaced not at all, so that the check reads every word twice.
[[nodiscard]] language::ScenarioFile largeDeck(DeckSize size);

/// Calls to PowerPoint that a TestePoint takes on it.
[[nodiscard]] std::size_t prescribedAutomationCalls(const DeckSize& deck);

} // namespace trials::cost
