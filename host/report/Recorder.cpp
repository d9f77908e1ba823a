#include "host/report/Recorder.h"

#include "automation/Text.h"

namespace host::report {

using Clock = std::chrono::steady_clock;

void Recorder::performing(const language::Statement& statement) {
    Attempt& now = attempt();
    now.moves.push_back({statement.place.line, automation::toUtf8(statement.text)});
    if (const auto* const check = std::get_if<language::Check>(&statement.node)) {
        now.expected = check->expected;
    }
}

void Recorder::calling(HostCall /*call*/) {
    since_ = Clock::now();
}

void Recorder::called(HostCall /*call*/, const automation::Error* /*error*/) {
    result_.time += Clock::now() - since_;
}

void Recorder::judged(const Reading& reading) {
    attempt().reading = reading;
    isJudged_ = true;
}

Attempt& Recorder::attempt() {
    if (isJudged_) {
        result_.attempts.emplace_back();
        isJudged_ = false;
    }
    return result_.attempts.back();
}

} // namespace host::report
