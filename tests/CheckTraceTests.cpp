#include "host/bench/Accesses.h"
#include "tests/QuestionBench.h"
#include "tests/TraceLog.h"

#include <gtest/gtest.h>

namespace {

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// The words of a trace, one a line.
std::string shortened(std::string trace) {
    for (int slide = 1; slide <= 5; ++slide) {
        const std::string number = std::to_string(slide);
        const std::string shapes = "Application.ActivePresentation.Slides.Item(" + number + ").Shapes";
        for (int shape = 1; shape <= 5; ++shape) {
            replaceAll(trace, shapes + ".Item(" + std::to_string(shape) + ")", number + "/" + std::to_string(shape));
        }
        replaceAll(trace, shapes, number);
        replaceAll(trace, "Application.ActivePresentation.Slides.Item(" + number + ")", "Slides(" + number + ")");
    }
    replaceAll(trace, "Application.ActivePresentation.Slides", "Slides");
    replaceAll(trace, ".Tags.Item(\"Identite\")", "#");
    replaceAll(trace, ".TextFrame.TextRange", "~");
    replaceAll(trace, "(-1, -1)", "()");
    replaceAll(trace, ", -1)", ")");
    replaceAll(trace, " ", "_");
    return trace;
}

TEST(Check, ReadsWhatItsQuestionReadsInOrderAndAsOften) {
    for (int question = 301; question <= 323; ++question) {
        SCOPED_TRACE(question);
        tests::TraceLog log(tests::TraceLog::Repetition::Shown);
        tests::QuestionBench bench(question);
        bench.prepare(log.observer());
        bench.work();
        static_cast<void>(log.take());
        bench.check();
        EXPECT_EQ(shortened(log.take()), host::bench::accessesOf(question));
    }
}

} // namespace
