#pragma once

#include "host/language/Interpreter.h"
#include "host/run/TrainingHost.h"

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

private:
    World& world_;
    TrainingHost* host_;
    std::vector<std::pair<std::u16string_view, automation::ObjectPtr>> objects_;
};

} // namespace host
