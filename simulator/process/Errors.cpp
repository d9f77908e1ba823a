#include "simulator/process/Errors.h"

#include "automation/Error.h"
#include "automation/Text.h"

namespace simulator::errors {

namespace {

constexpr auto objectGone = static_cast<std::int32_t>(0x80048010U);
constexpr auto requestRefused = static_cast<std::int32_t>(0x80048240U);

[[noreturn]] void raise(std::int32_t number, std::u16string description) {
    throw automation::Error(number, u"Microsoft PowerPoint", std::move(description));
}

} // namespace

void gone() {
    raise(objectGone, u"L'objet n'existe pas.");
}

void outOfRange(std::u16string_view member, std::int32_t index, std::size_t count) {
    using automation::decimal;
    raise(requestRefused, std::u16string(member) + u" : Entier hors limites. " + decimal(index) +
                              u" n'appartient pas à la plage valide de 1 à " + decimal(static_cast<long long>(count)) +
                              u".");
}

void invalidRequest(std::u16string_view text) {
    raise(requestRefused, std::u16string(text));
}

void invalidRequest(std::u16string_view member, std::u16string_view reason) {
    raise(requestRefused, std::u16string(member) + u" : Requête incorrecte. " + std::u16string(reason));
}

void invalidValue(std::u16string_view member) {
    invalidRequest(member, u"La valeur spécifiée est hors limites.");
}

} // namespace simulator::errors
