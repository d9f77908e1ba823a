#include "tests/trials/BareClient.h"
#include "tests/trials/ScriptHost.h"
#include "tests/trials/StandIn.h"

using automation::RunTimeError;

automation::LateBound trials::standIn() {
    automation::raise(RunTimeError::CannotCreateObject);
}

std::function<void()> trials::bareClient(const std::vector<trace::RecordedCall>& /*calls*/) {
    automation::raise(RunTimeError::CannotCreateObject);
}

std::string trials::runScript(const std::filesystem::path& /*script*/,
                              const std::vector<std::u16string>& /*arguments*/) {
    automation::raise(RunTimeError::CannotCreateObject);
}
