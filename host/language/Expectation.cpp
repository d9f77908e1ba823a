#include "host/language/Expectation.h"

#include "host/language/Words.h"

#include <algorithm>

namespace host {

namespace {

std::string verdict(bool isRemark, const std::u16string& letter, const std::vector<std::u16string>& complement) {
    const std::string text = isRemark         ? "a success with the remark " + inQuotes(letter)
                             : letter.empty() ? std::string("a success")
                                              : "the letter " + inQuotes(letter);
    return text + (complement.empty() ? "" : " with the complement " + inQuotes(complement));
}

} // namespace

std::string inWords(const automation::Error& error) {
    std::string text = "error ";
    for (const char c : std::string_view(error.what())) {
        const bool isBreak = c == '\r' || c == '\n';
        if (!((isBreak || c == ' ') && text.back() == ' ')) {
            text += isBreak ? ' ' : c;
        }
    }
    return text;
}

std::string Reading::display() const {
    if (error) {
        return "the " + inWords(*error);
    }
    return erreurGenerale ? "the general error " + inQuotes(causeErreur)
                          : verdict(bravoNuance, causeErreur, complement);
}

std::string Reading::explained() const {
    return display() + (meaning.empty() ? "" : ": " + meaning) + (reason.empty() ? "" : ". " + reason);
}

bool ExpectedError::matches(const automation::Error& error) const {
    return error.number() == number && std::all_of(parts.begin(), parts.end(), [&](const std::u16string& part) {
               return error.source().find(part) != std::u16string::npos;
           });
}

std::string ExpectedError::display() const {
    std::string text = "the " + inWords(automation::Error(number, {}, {}));
    for (std::size_t i = 0; i < parts.size(); ++i) {
        text += (i == 0 ? " from a source with " : " and ") + inQuotes(parts[i]);
    }
    return text;
}

bool Expectation::matches(const Reading& reading) const {
    if (kind == Kind::Error || reading.error) {
        return kind == Kind::Error && reading.error && error.matches(*reading.error);
    }
    if (kind == Kind::General || reading.erreurGenerale) {
        return kind == Kind::General && reading.erreurGenerale && reading.causeErreur == letter;
    }
    return reading.bravoNuance == (kind == Kind::Remark) && reading.causeErreur == letter &&
           reading.complement == complement;
}

bool Expectation::isSuccess() const noexcept {
    return kind == Kind::Success || kind == Kind::Remark || (kind == Kind::Error && error.number == 0);
}

std::string Expectation::display() const {
    switch (kind) {
    case Kind::Error: return error.display();
    case Kind::General: return "the general error " + inQuotes(letter);
    default: return verdict(kind == Kind::Remark, letter, complement);
    }
}

} // namespace host
