#include "automation/Error.h"

#include "automation/Text.h"

#include <new>
#include <utility>

namespace automation {

namespace {

/// Source of the errors that the run time raises inside the library.
constexpr std::u16string_view libraryName = u"K73053";

std::string compose(std::int32_t number, const std::u16string& source, const std::u16string& description) {
    const bool plain = number >= 0 && number < 0x10000;
    std::string text = toUtf8(plain ? decimal(number) : hexadecimal(number));
    if (!description.empty()) {
        text += " " + toUtf8(description);
    }
    return source.empty() ? text : text + " [" + toUtf8(source) + "]";
}

} // namespace

bool remote::isDead(std::int32_t number) noexcept {
    return number == disconnected || number == serverUnavailable || number == callFailed || number == callNotExecuted ||
           number == serverDied || number == serverDiedBefore || number == objectNotConnected;
}

Error::Error(std::int32_t number, std::u16string source, std::u16string description, std::u16string helpFile,
             std::int32_t helpContext)
    : number_(number), source_(std::move(source)), description_(std::move(description)), helpFile_(std::move(helpFile)),
      helpContext_(helpContext), what_(compose(number_, source_, description_)) {}

Error::Error(RunTimeError error)
    : Error(static_cast<std::int32_t>(error), std::u16string(libraryName), std::u16string(describe(error))) {}

std::u16string_view describe(RunTimeError error) noexcept {
    switch (error) {
    case RunTimeError::InvalidProcedureCall: return u"Argument ou appel de procédure incorrect";
    case RunTimeError::Overflow: return u"Dépassement de capacité";
    case RunTimeError::OutOfMemory: return u"Mémoire insuffisante";
    case RunTimeError::DivisionByZero: return u"Division par zéro";
    case RunTimeError::SubscriptOutOfRange: return u"L'indice n'appartient pas à la sélection";
    case RunTimeError::TypeMismatch: return u"Incompatibilité de type";
    case RunTimeError::FileNotFound: return u"Fichier introuvable";
    case RunTimeError::FileAlreadyOpen: return u"Fichier déjà ouvert";
    case RunTimeError::FileAlreadyExists: return u"Ce fichier existe déjà";
    case RunTimeError::PermissionDenied: return u"Permission refusée";
    case RunTimeError::PathAccess: return u"Erreur d'accès chemin/fichier";
    case RunTimeError::PathNotFound: return u"Chemin d'accès introuvable";
    case RunTimeError::ObjectNotSet: return u"Variable objet ou variable de bloc With non définie";
    case RunTimeError::ObjectRequired: return u"Objet requis";
    case RunTimeError::CannotCreateObject: return u"Un composant ActiveX ne peut pas créer d'objet";
    case RunTimeError::NamedArgumentNotFound: return u"Argument nommé introuvable";
    case RunTimeError::MemberNotFound: return u"Propriété ou méthode non gérée par cet objet";
    case RunTimeError::ArgumentNotOptional: return u"Argument non facultatif";
    case RunTimeError::WrongNumberOfArguments:
        return u"Nombre d'arguments incorrect ou affectation de propriété incorrecte";
    }
    return u"Erreur définie par l'application ou par l'objet";
}

void raise(RunTimeError error) {
    throw Error(error);
}

Error currentError() {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return Error(RunTimeError::OutOfMemory);
    } catch (...) {
        return Error(RunTimeError::InvalidProcedureCall);
    }
}

} // namespace automation
