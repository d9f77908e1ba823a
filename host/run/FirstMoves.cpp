#include "host/run/FirstMoves.h"

#include "host/language/Interpreter.h"
#include "host/run/WorldStage.h"

namespace host {

void performFirstMoves(const language::ScenarioFile& file, World& world, TrainingHost& host) {
    WorldStage stage(world, &host);
    language::Interpreter interpreter(stage);
    for (const language::Statement& statement : file.scenarios.front().firstMoves()) {
        interpreter.execute(statement);
    }
    interpreter.forget();
}

} // namespace host
