#include "host/language/Writer.h"

#include "automation/Text.h"

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

std::u16string numberOf(const automation::Error& error) {
    const std::int32_t number = error.number();
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

} // namespace

std::vector<std::u16string> checkOf(const Reading& reading) {
    if (reading.error) {
        return {u"check error " + numberOf(*reading.error),
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

std::string scenarioText(const ScenarioFile& file, std::u16string_view title,
                         const std::vector<std::u16string>& statements) {
    std::u16string text = file.heading.empty() ? file.heading : u"# " + file.heading + u'\n';
    text += u"question " + automation::decimal(file.question) + u"\n\ncourse\n";
    for (const Statement& statement : file.course) {
        text += u"  " + statement.text + u'\n';
    }
    text += u"\nscenario " + literal(title) + u'\n';
    for (const std::u16string& statement : statements) {
        text += u"  " + statement + u'\n';
    }
    return automation::toUtf8(text);
}

} // namespace host::language
