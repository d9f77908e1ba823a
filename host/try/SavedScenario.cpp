#include "host/try/SavedScenario.h"

#include "automation/Text.h"

namespace host {

namespace {

std::u16string inQuotes(std::u16string_view text) {
    std::u16string result = u"\"";
    for (const char16_t c : text) {
        result += c == u'"' ? std::u16string_view(u"\"\"") : std::u16string_view(&c, 1);
    }
    return result + u'"';
}

void append(std::u16string& text, std::span<const language::Statement> statements) {
    for (const language::Statement& statement : statements) {
        text += u"  " + statement.text + u'\n';
    }
}

} // namespace

std::u16string checkOf(const Reading& reading) {
    if (reading.error) {
        return u"check error " + automation::decimal(reading.error->number());
    }
    if (reading.erreurGenerale) {
        return u"check general " + inQuotes(reading.causeErreur);
    }
    std::u16string text = reading.bravoNuance           ? u"check remark " + inQuotes(reading.causeErreur)
                          : reading.causeErreur.empty() ? std::u16string(u"check success")
                                                        : u"check " + inQuotes(reading.causeErreur);
    for (std::size_t i = 0; i < reading.complement.size(); ++i) {
        text += (i == 0 ? u" complement " : u", ") + inQuotes(reading.complement[i]);
    }
    return text;
}

std::string scenarioText(const language::ScenarioFile& file, std::u16string_view title,
                         std::span<const language::Statement> statements) {
    std::u16string text = file.heading.empty() ? file.heading : u"# " + file.heading + u'\n';
    text += u"question " + automation::decimal(file.question) + u"\n\ncourse\n";
    append(text, file.course);
    text += u"\nscenario " + inQuotes(title) + u'\n';
    append(text, statements);
    return automation::toUtf8(text);
}

} // namespace host
