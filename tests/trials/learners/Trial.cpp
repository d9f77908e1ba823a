#include "tests/trials/learners/Trial.h"

#include "automation/Text.h"
#include "host/language/Parser.h"
#include "host/language/Writer.h"

namespace trials::learners {

namespace {

std::optional<std::int32_t> numberOf(const std::optional<automation::Error>& error) {
    return error ? std::optional(error->number()) : std::nullopt;
}

} // namespace

bool Finding::isAgreed() const {
    return numberOf(wanted.error) == numberOf(read.error) && wanted.erreurGenerale == read.erreurGenerale &&
           wanted.causeErreur == read.causeErreur && wanted.bravoNuance == read.bravoNuance &&
           wanted.complement == read.complement;
}

Trial::Trial(std::int32_t question, const Course& course)
    : exercise_(*world_, course, question, nobody_), examiner_(question) {
    exercise_.begin();
    examiner_.begun(scene());
}

bool Trial::perform(const std::u16string& statement) {
    try {
        exercise_.execute(language::parseStatement(statement));
    } catch (const language::Failure&) {
        return false;
    }
    if (statement == u"Host.InitQuestion") {
        examiner_.begun(scene());
    }
    return true;
}

Finding Trial::check() {
    Reading wanted = examiner_.examine(scene());
    return {std::move(wanted), exercise_.check()};
}

std::optional<std::vector<Finding>> replay(std::int32_t question, const Course& course, const Moves& moves) {
    Trial trial(question, course);
    std::vector<Finding> findings;
    for (const std::u16string& move : moves) {
        if (move == checkMove) {
            findings.push_back(trial.check());
        } else if (!trial.perform(move)) {
            return std::nullopt;
        }
    }
    trial.finish();
    return findings;
}

std::string scenarioText(const language::ScenarioFile& file, const Moves& moves, const std::vector<Finding>& findings,
                         const std::string& title) {
    std::vector<std::u16string> statements;
    std::size_t check = 0;
    for (const std::u16string& move : moves) {
        if (move == checkMove) {
            const std::vector<std::u16string> wanted = language::checkOf(findings.at(check++).wanted);
            statements.insert(statements.end(), wanted.begin(), wanted.end());
        } else {
            statements.push_back(move);
        }
    }
    return language::scenarioText(file, automation::fromUtf8(title), statements);
}

} // namespace trials::learners
