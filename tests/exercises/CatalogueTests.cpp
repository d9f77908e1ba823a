#include "automation/Text.h"
#include "exercises/Catalogue.h"
#include "host/command/Library.h"
#include "host/language/Words.h"
#include "host/world/RealFile.h"
#include "tests/trials/learners/Judge.h"
#include "tests/trials/trace/Expected.h"

#include <gtest/gtest.h>

#include <set>

namespace catalogue_tests {

using automation::toUtf8;
using host::Expectation;
using host::language::ScenarioFile;

/// What a scenario file lacks of what is to be known of its question.
std::set<std::string> missingIn(const ScenarioFile& file) {
    std::set<std::string> missing;
    if (file.contract.task.empty()) {
        missing.insert("its task");
    }
    if (file.contract.delivered.empty()) {
        missing.insert("what is delivered");
    }
    const auto* const first = file.scenarios.empty() ? nullptr : file.scenarios.front().lastExpectation();
    if (first == nullptr || !first->isSuccess()) {
        missing.insert("a first scenario that passes");
    }
    for (const host::language::Scenario& scenario : file.scenarios) {
        for (const host::language::Statement& statement : scenario.statements) {
            const auto* const check = std::get_if<host::language::Check>(&statement.node);
            if (check != nullptr && check->expected.kind <= Expectation::Kind::Remark &&
                !check->expected.letter.empty() && file.contract.meaningOf(check->expected.letter) == nullptr) {
                missing.insert("the meaning of " + host::inQuotes(check->expected.letter));
            }
        }
    }
    return missing;
}

/// The rows of a question in the integrator's guide.
std::string rowsOf(const ScenarioFile& file) {
    std::string rows = "| " + std::to_string(file.question) + " | | " + toUtf8(file.contract.task) + " |\n";
    for (const auto& [place, verdict, text] : file.contract.meanings) {
        if (!verdict.letter.empty()) {
            const bool isRemark = verdict.kind == Expectation::Kind::Remark;
            rows += "| | " + toUtf8(verdict.letter) + " | " + (isRemark ? "passed, with a remark: " : "") +
                    toUtf8(text) + " |\n";
        }
    }
    return rows;
}

/// The same as the guide has them.
std::string rowsIn(const std::string& guide, std::int32_t question) {
    const std::size_t start = guide.find("\n| " + std::to_string(question) + " | | ") + 1;
    std::size_t end = start == 0 ? 0 : guide.find('\n', start) + 1;
    while (guide.compare(end, 4, "| | ") == 0) {
        end = guide.find('\n', end) + 1;
    }
    return guide.substr(start, end - start);
}

TEST(Catalogue, EachQuestionIsKnownInEveryPlaceThatSpeaksOfIt) {
    const host::Bytes page = host::contentsOf(SCENARIOS "/../docs/integrator.md");
    const std::string guide(page.begin(), page.end());
    for (std::int32_t number = exercises::firstQuestion; number <= exercises::lastQuestion; ++number) {
        const std::string path = "scenarios/questions/0" + std::to_string(number) + ".scn";
        try {
            const ScenarioFile file = host::load(SCENARIOS "/../" + path);
            EXPECT_EQ(missingIn(file), std::set<std::string>()) << path << " does not say all";
            EXPECT_EQ(rowsIn(guide, number), rowsOf(file)) << "docs/integrator.md tells otherwise than " << path;
        } catch (const host::UsageError& error) {
            ADD_FAILURE() << error.message;
            EXPECT_NE(rowsIn(guide, number), "") << "docs/integrator.md has no row of " << number;
        }
        EXPECT_NO_THROW(static_cast<void>(trials::learners::judgeOf(number)))
            << "tests/trials/learners/Judge.cpp has no judge of " << number;
        EXPECT_NO_THROW(static_cast<void>(trials::trace::prepareOf(number)))
            << "tests/trials/trace/Questions.cpp does not say what " << number << " reads";
    }
}

} // namespace catalogue_tests
