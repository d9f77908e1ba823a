#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/try/Conversation.h"
#include "host/world/RealFile.h"

namespace host {

namespace {

struct TryRequest {
    std::string question; ///< its number, or a scenario file
    std::string course;   ///< folder of the course's own files; empty for those that the scenario file builds
};

/// The files that a question comes from, which nothing may be written over.
std::vector<std::filesystem::path> inputsOf(const language::ScenarioFile& file, const std::string& course) {
    std::vector<std::filesystem::path> inputs{pathOf(file.name)};
    if (!course.empty()) {
        for (const auto& entry : std::filesystem::directory_iterator(pathOf(course))) {
            if (entry.path().stem().string().ends_with(std::to_string(file.question))) {
                inputs.push_back(entry.path());
            }
        }
    }
    return inputs;
}

/// Prepares a question and talks with the course author, who states moves, asks for verdicts and saves scenarios.
ExitCode talk(const TryRequest& request, const CommandContext& at) {
    const language::ScenarioFile file = load(at.library.fileNamed(request.question));
    const WorldMaker& makeWorld = at.worlds.chosen();
    const std::unique_ptr<LineReader> lines = at.makeLines();
    Course course = courseOf(file, request.course, makeWorld);
    const std::string shortfall = shortfallOf(course, file, makeWorld);
    at.out << shortfall;
    Conversation conversation(file, std::move(course), makeWorld, *lines, at.out, inputsOf(file, request.course));
    return conversation.run() && shortfall.empty() ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addTry(CLI::App& command) {
    const auto request = std::make_shared<TryRequest>();
    addScenarioFile(command, request->question);
    addCourse(command, request->course);
    return [request](const CommandContext& at) { return talk(*request, at); };
}

} // namespace host
