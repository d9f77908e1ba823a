#pragma once

#include "host/run/WorldStage.h"

namespace host {

/// One question being worked on: it is begun, statements are performed, it is finished.
class Exercise {
public:
    /// World, course and witness must outlive this object.
    Exercise(World& world, const Course& course, std::int32_t question, Witness& witness);

    /// InitQuestion with the question, in the host's folder. Raises what the module raises.
    void begin();
    /// Raises language::Failure where the statement falls short.
    void execute(const language::Statement& statement);
    /// Raises language::Failure where reading the value raises.
    [[nodiscard]] automation::Value evaluate(const language::Expression& expression);
    /// Statements from now on are ended where they turn for longer than this; 0 for never.
    void limit(std::chrono::seconds patience) noexcept { stage_.limit(patience); }
    /// One TestePoint, and what the host reads then.
    [[nodiscard]] Reading check() { return host_.check(); }
    /// Drops the variables, closes the question and leaves the module. Raises what the module raises.
    void finish();

    /// What the last check read; empty where there was none.
    [[nodiscard]] const Reading& lastReading() const noexcept { return host_.lastReading(); }

private:
    World& world_;
    Witness& witness_;
    TrainingHost host_;
    WorldStage stage_;
    language::Interpreter interpreter_;
};

} // namespace host
