#include "host/language/Words.h"
#include "tests/exercises/QuestionBench.h"
#include "tests/support/TraceLog.h"
#include "tests/trials/cost/Accesses.h"

#include <gtest/gtest.h>

namespace check_trace_tests {

/// The words of a trace, one a line.
std::string shortened(std::string trace) {
    for (int slide = 1; slide <= 5; ++slide) {
        const std::string number = std::to_string(slide);
        const std::string shapes = "Application.ActivePresentation.Slides.Item(" + number + ").Shapes";
        for (int shape = 1; shape <= 5; ++shape) {
            host::replaceAll(trace, shapes + ".Item(" + std::to_string(shape) + ")",
                             number + "/" + std::to_string(shape));
        }
        host::replaceAll(trace, shapes, number);
        host::replaceAll(trace, "Application.ActivePresentation.Slides.Item(" + number + ")", "Slides(" + number + ")");
    }
    host::replaceAll(trace, "Application.ActivePresentation.Slides", "Slides");
    host::replaceAll(trace, ".Tags.Item(\"Identite\")", "#");
    host::replaceAll(trace, ".TextFrame.TextRange", "~");
    host::replaceAll(trace, "(-1, -1)", "()");
    host::replaceAll(trace, ", -1)", ")");
    host::replaceAll(trace, " ", "_");
    return trace;
}

TEST(Check, ReadsWhatItsQuestionReadsInOrderAndAsOften) {
    for (int question = exercises::firstQuestion; question <= exercises::lastQuestion; ++question) {
        SCOPED_TRACE(question);
        tests::TraceLog log(tests::TraceLog::Repetition::Shown);
        tests::QuestionBench bench(question);
        bench.prepare(log.observer());
        bench.work();
        static_cast<void>(log.take());
        bench.check();
        EXPECT_EQ(shortened(log.take()), trials::cost::accessesOf(question));
    }
}

} // namespace check_trace_tests
