#pragma once

#include "automation/Error.h"
#include "automation/Unmoved.h"
#include "host/language/Ast.h"

namespace host {

/// What a training host asks of the module.
enum class HostCall : std::uint8_t { InitQuestion, TestePoint, Fermer, Quitter };

/// The name of a call, as `AbstractModule` has it.
[[nodiscard]] constexpr std::u16string_view nameOf(HostCall call) noexcept {
    switch (call) {
    case HostCall::InitQuestion: return u"InitQuestion";
    case HostCall::TestePoint: return u"TestePoint";
    case HostCall::Fermer: return u"Fermer";
    case HostCall::Quitter: return u"Quitter";
    }
    return u"";
}

/// Sees what happens in an exercise, as it happens.
class Witness : automation::Unmoved {
public:
    virtual ~Witness() = default;

    /// The host has put the course's files into its folder.
    virtual void delivered(const std::vector<std::u16string>& /*names*/) {}
    virtual void calling(HostCall /*call*/) {}
    /// `error` is what the call raised; null where it went well.
    virtual void called(HostCall /*call*/, const automation::Error* /*error*/) {}
    /// The host has read the verdict of a TestePoint; who knows what it means and why may add it.
    virtual void explain(Reading& /*reading*/) {}
    /// All that is known of the verdict is in the reading.
    virtual void judged(const Reading& /*reading*/) {}
    /// A statement of the scenario is about to be performed.
    virtual void performing(const language::Statement& /*statement*/) {}
};

} // namespace host
