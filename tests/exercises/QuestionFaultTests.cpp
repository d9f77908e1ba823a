#include "automation/observe/FaultInjector.h"
#include "tests/exercises/QuestionBench.h"
#include "tests/support/Errors.h"

namespace question_fault_tests {

using automation::Error;
using automation::FaultInjector;
using automation::Object;

const Error fault(static_cast<std::int32_t>(0x800706BEU), u"Microsoft PowerPoint", u"L'appel a échoué.", u"aide.hlp",
                  3);

/// Fails call after call of an operation until it makes no more; `judge` sees the error of each. Returns the number of
/// calls.
template <typename Operation, typename Judge>
std::size_t failEachCall(FaultInjector& calls, const Operation& operation, const Judge& judge) {
    for (std::size_t n = 1;; ++n) {
        calls.rearm(n);
        const std::optional<Error> error = errorOf(operation);
        if (!calls.hasStruck()) {
            return n - 1;
        }
        SCOPED_TRACE(n);
        judge(error);
    }
}

class EachQuestion : public testing::TestWithParam<int> {
protected:
    void expectReport(const std::optional<Error>& error, std::u16string_view service) {
        ASSERT_TRUE(error);
        EXPECT_EQ(error->number(), fault.number());
        EXPECT_EQ(error->description(), fault.description());
        EXPECT_EQ(error->helpFile(), fault.helpFile());
        EXPECT_EQ(error->helpContext(), fault.helpContext());
        EXPECT_EQ(error->source(), u"DLL K61027 - CLASSE " + bench.className() + u"\n\r - SERVICE " +
                                       std::u16string(service) + u" - OBJET Microsoft PowerPoint");
    }

    tests::QuestionBench bench{GetParam()};
    std::shared_ptr<FaultInjector> injector = std::make_shared<FaultInjector>(0, FaultInjector::Lasting::Once, fault);
};
INSTANTIATE_TEST_SUITE_P(All, EachQuestion, testing::Range(exercises::firstQuestion, exercises::lastQuestion + 1),
                         [](const auto& question) { return std::to_string(question.param); });

TEST_P(EachQuestion, ReportsAFailureAnywhereInPrepare) {
    // The last two calls of question 318 ask for the user's measurement system, where no answer is no number.
    std::size_t typeMismatches = 0;
    const std::size_t alive = Object::alive();
    const std::size_t calls = failEachCall(
        *injector,
        [&] {
            if (bench.presentations() != 0) {
                bench.closePresentation();
            }
            bench.prepare(injector);
        },
        [&](const std::optional<Error>& error) {
            if (error && error->number() == static_cast<std::int32_t>(automation::RunTimeError::TypeMismatch)) {
                ++typeMismatches;
            } else {
                expectReport(error, u"Prepare");
            }
            EXPECT_EQ(bench.question->PathDossierParDefaut(), tests::QuestionBench::folder);
            bench.question = nullptr;
            EXPECT_EQ(Object::alive(), alive);
        });
    EXPECT_GT(calls, 10U);
    EXPECT_EQ(typeMismatches, GetParam() == 318 ? 2U : 0U);
}

TEST_P(EachQuestion, ReportsAFailureAnywhereInTestePoint) {
    bench.prepare(injector);
    static_cast<void>(bench.testePoint());
    const std::u16string letter = bench.question->CauseErreur();
    EXPECT_EQ(letter.empty(), GetParam() <= 303);
    bench.work();
    std::u16string found;
    const std::size_t alive = Object::alive();
    const std::size_t calls = failEachCall(
        *injector, [&] { bench.question->TestePoint(); },
        [&](const std::optional<Error>& error) {
            if (GetParam() == 304) {
                EXPECT_FALSE(error) << "a search for files that fails finds nothing";
                found += bench.question->CauseErreur();
                return;
            }
            expectReport(error, u"TestePoint");
            EXPECT_EQ(bench.question->CauseErreur(), letter);
            EXPECT_EQ(Object::alive(), alive);
        });
    EXPECT_EQ(calls == 0, GetParam() <= 303);
    if (GetParam() != 304 && bench.question->BravoNuance() == 0) {
        EXPECT_EQ(bench.question->CauseErreur(), letter) << "a passing attempt writes no letter";
    }
    EXPECT_EQ(found, GetParam() == 304 ? u"AB" : u"");
}

} // namespace question_fault_tests
