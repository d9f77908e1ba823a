#include "host/language/Writer.h"

#include "automation/Text.h"
#include "host/language/Words.h"

namespace host::language {

namespace {

/// A text in quotes, its own quotes doubled.
std::u16string literal(std::u16string_view text) {
    std::u16string result = u"\"";
    for (const char16_t c : text) {
        result += c == u'"' ? std::u16string_view(u"\"\"") : std::u16string_view(&c, 1);
    }
    return result + u'"';
}

std::u16string numberOf(std::int32_t number) {
    return number < 0 ? u"&H" + automation::hexadecimal(number) : automation::decimal(number);
}

/// The check of a verdict on the learner's work.
std::u16string verdictOf(const Reading& reading) {
    std::u16string text = reading.bravoNuance           ? u"check remark " + literal(reading.causeErreur)
                          : reading.causeErreur.empty() ? std::u16string(u"check success")
                                                        : u"check " + literal(reading.causeErreur);
    for (std::size_t i = 0; i < reading.complement.size(); ++i) {
        text += (i == 0 ? u" complement " : u", ") + literal(reading.complement[i]);
    }
    return text;
}

std::u16string lineOf(const Meaning& meaning) {
    const Expectation& verdict = meaning.verdict;
    std::u16string line;
    if (verdict.kind == Expectation::Kind::Error) {
        line = u"error " + numberOf(verdict.error.number);
        for (const std::u16string& part : verdict.error.parts) {
            line += u' ' + literal(part);
        }
        line += u':';
    } else {
        line = (verdict.kind == Expectation::Kind::Remark ? u"remark " : u"letter ") + literal(verdict.letter);
    }
    return line + u' ' + literal(meaning.text) + u'\n';
}

/// The statements of a block, each on a line of its own.
std::u16string linesOf(const std::vector<Statement>& statements) {
    std::u16string text;
    for (const Statement& statement : statements) {
        text += u"  " + indented(statement.text) + u'\n';
    }
    return text;
}

std::u16string textOf(const Contract& contract) {
    std::u16string text = contract.task.empty() ? u"" : u"\ntask " + literal(contract.task) + u'\n';
    for (const Meaning& meaning : contract.meanings) {
        text += lineOf(meaning);
    }
    return contract.delivered.empty() ? text : text + u"\ndelivered\n" + linesOf(contract.delivered);
}

} // namespace

std::vector<std::u16string> checkOf(const Reading& reading) {
    if (reading.error) {
        return {u"check error " + numberOf(reading.error->number()),
                u"expect Host.CauseErreur = " + literal(reading.causeErreur)};
    }
    if (!reading.erreurGenerale) {
        return {verdictOf(reading)};
    }
    std::vector<std::u16string> statements{u"check general " + literal(reading.causeErreur)};
    if (reading.bravoNuance) {
        statements.emplace_back(u"expect Host.BravoNuance = True");
    }
    return statements;
}

std::string scenarioBlock(std::u16string_view title, const std::vector<std::u16string>& statements) {
    std::u16string text = u"scenario " + literal(title) + u'\n';
    for (const std::u16string& statement : statements) {
        text += u"  " + indented(statement) + u'\n';
    }
    return automation::toUtf8(text);
}

std::string scenarioText(const ScenarioFile& file, std::u16string_view title,
                         const std::vector<std::u16string>& statements) {
    std::u16string text = file.heading.empty() ? file.heading : u"# " + file.heading + u'\n';
    text += u"question " + automation::decimal(file.question) + u'\n' + textOf(file.contract);
    text += u"\ncourse\n" + linesOf(file.course) + u'\n';
    return automation::toUtf8(text) + scenarioBlock(title, statements);
}

} // namespace host::language
