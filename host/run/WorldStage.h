#pragma once

#include "host/language/Interpreter.h"
#include "host/run/TrainingHost.h"

#include <chrono>

namespace host {

/// A world as the stage of statements: PowerPoint's application, and the objects `PowerPoint`, `Learner`, `Registry`,
/// `Files` and, where there is a training host, `Host`.
class WorldStage final : public language::Stage {
public:
    /// Both must outlive this object.
    explicit WorldStage(World& world, TrainingHost* host = nullptr);

    automation::ObjectPtr application() override;
    automation::ObjectPtr object(std::u16string_view name) override;
    Reading testePoint() override;
    void beginTurn() override;

    /// From now on a block of statements is ended where it takes longer; `begin` says when one begins.
    void limit(std::chrono::seconds patience) noexcept { patience_ = patience; }
    void begin() noexcept { begun_ = std::chrono::steady_clock::now(); }

private:
    World& world_;
    TrainingHost* host_;
    std::vector<std::pair<std::u16string_view, automation::ObjectPtr>> objects_;
    std::chrono::seconds patience_{0}; ///< 0 for any
    std::chrono::steady_clock::time_point begun_;
};

} // namespace host
