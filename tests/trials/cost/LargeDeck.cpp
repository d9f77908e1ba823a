#include "tests/trials/cost/LargeDeck.h"

#include "host/language/Parser.h"
#include "tests/trials/trace/Expected.h"
#include "tests/trials/trace/TraceLog.h"

namespace trials::cost {

language::ScenarioFile largeDeck(DeckSize size) {
    std::string ordinary;
    std::string first;
    for (std::size_t i = 0; i < size.wordsInShape; ++i) {
        const std::string blank = i + 1 == size.wordsInShape ? "" : " ";
        ordinary += "clarté" + blank;
        first += (i < 4 ? "créer" : "clarté") + blank;
    }
    std::string text = "question 306\nremark \"F\" \"\"\"créer\"\" stands four times\"\ncourse\n  Presentations.Add\n  "
                       "Set deck = ActivePresentation.Slides\n";
    for (std::size_t slide = 1; slide <= size.slides; ++slide) {
        text += "  Set shapes = deck.Add(" + std::to_string(slide) + ", ppLayoutBlank).Shapes\n";
        for (std::size_t shape = 1; shape <= size.shapesOnSlide; ++shape) {
            text += "  shapes.AddTextbox(msoTextOrientationHorizontal, 20, " + std::to_string(shape * 40) +
                    ", 680, 40).TextFrame.TextRange.Text = \"" + (slide == 1 && shape == 1 ? first : ordinary) + "\"\n";
        }
    }
    return language::parse("large deck", text + "scenario \"nothing left to do\"\n  check remark \"F\"\n");
}

std::size_t prescribedAutomationCalls(const DeckSize& deck) {
    std::size_t calls = 0;
    const trace::Texts texts(deck.slides, std::vector<int>(deck.shapesOnSlide, static_cast<int>(deck.wordsInShape)));
    for (const trace::Line& line : trace::expectedTrace(texts)) {
        calls += line.text.starts_with("Windows.") ? 0 : trace::callsIn(line.text);
    }
    return calls;
}

} // namespace trials::cost
