#pragma once

#include "tests/trials/trace/Expected.h"
#include "tests/trials/trace/TraceLog.h"

namespace trials::torture {

using trace::Phase;

/// A call that left the module when nothing failed.
struct Call {
    automation::Border border = automation::Border::Automation;
    Phase phase = Phase::Looking;
    std::u16string member{};
    std::u16string text{}; ///< as a macro would state it
    std::u16string key{};  ///< of the registry: how an error names what could not be opened
};

/// Writes the calls of an operation down as they pass.
class RouteRecorder final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override;

    /// The first calls, so many as an operation has made, in the phases of its expected trace.
    [[nodiscard]] std::vector<Call> route(const std::vector<trace::Line>& expected, std::size_t calls) const;
    /// How their trace differs from the one expected, in words; empty where it does not.
    [[nodiscard]] std::string differenceOf(const std::vector<trace::Line>& expected, std::size_t calls);

private:
    std::vector<Call> calls_;
    trace::TraceLog log_;
};

} // namespace trials::torture
