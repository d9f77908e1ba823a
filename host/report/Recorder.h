#pragma once

#include "host/report/Result.h"
#include "host/run/Witness.h"

namespace host::report {

/// Writes down what happens in a scenario: moves, verdicts, and the time that the module takes.
class Recorder final : public Witness {
public:
    /// `result` must outlive this object.
    explicit Recorder(Result& result) : result_(result) {}

    void performing(const language::Statement& statement) override;
    void calling(HostCall call) override;
    void called(HostCall call, const automation::Error* error) override;
    void judged(const Reading& reading) override;

private:
    [[nodiscard]] Attempt& attempt();

    Result& result_;
    bool isJudged_ = true; ///< what comes next begins another attempt
    std::chrono::steady_clock::time_point since_;
};

} // namespace host::report
