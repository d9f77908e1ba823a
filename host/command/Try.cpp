#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/try/Conversation.h"

namespace host {

namespace {

struct TryRequest {
    std::int32_t question = 0;
    std::string course; ///< folder of the course's own files; empty for those that the scenario file builds
};

/// Prepares a question and talks with the course author, who states moves, asks for verdicts and saves scenarios.
ExitCode talk(const TryRequest& request, const CommandContext& at) {
    const language::ScenarioFile file = load(at.library.fileOf(request.question));
    const WorldMaker& makeWorld = at.worlds.chosen();
    const std::unique_ptr<LineReader> lines = at.makeLines();
    Course course = courseOf(file, request.course, makeWorld);
    at.out << shortfallOf(course, file, makeWorld);
    Conversation conversation(file, std::move(course), makeWorld, *lines, at.out);
    return conversation.run() ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addTry(CLI::App& command) {
    const auto request = std::make_shared<TryRequest>();
    addQuestion(command, "question", request->question)->required();
    addCourse(command, request->course);
    return [request](const CommandContext& at) { return talk(*request, at); };
}

} // namespace host
