#include "host/command/Commands.h"
#include "host/try/Conversation.h"

namespace host {

ExitCode tryOut(std::int32_t question, const Library& library, const WorldMaker& makeWorld, LineReader& lines,
                std::ostream& out) {
    const language::ScenarioFile file = load(library.fileOf(question));
    try {
        return Conversation(file, makeWorld, lines, out).run() ? ExitCode::Good : ExitCode::FellShort;
    } catch (const language::Failure& failure) { // of the course
        throw UsageError(failure.remark.in(file.name));
    }
}

} // namespace host
