#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/play/Player.h"
#include "host/world/RealFile.h"
#ifdef _WIN32
#include "host/win32/Browser.h"
#else
#include "host/posix/Browser.h"
#endif

#include "automation/Text.h"
#include "exercises/Catalogue.h"

#include <ostream>

namespace host {

namespace {

struct PlayRequest {
    std::int32_t question = 0;
    std::string file;   ///< a scenario file of the author's; empty for that of the question
    std::string course; ///< folder of the course's own files; empty for those that the scenario file builds
};

PlayedQuestion played(language::ScenarioFile file, std::int32_t next, const PlayRequest& request,
                      const WorldMaker& makeWorld) {
    Course course = courseOf(file, request.course, makeWorld);
    return {std::move(file), std::move(course), next};
}

/// Serves a page on which the author plays a question in the browser, until it is closed.
ExitCode play(const PlayRequest& request, const CommandContext& at) {
    if (request.file.empty() && request.question == 0) {
        throw UsageError("which question? For example: play 315");
    }
    const WorldMaker& makeWorld = at.worlds.embedded;
    const QuestionFinder find = [&](std::int32_t question) {
        return played(load(at.library.fileOf(question)), question < exercises::lastQuestion ? question + 1 : 0, request,
                      makeWorld);
    };
    Desk desk(request.file.empty() ? find(request.question) : played(load(pathOf(request.file)), 0, request, makeWorld),
              find, makeWorld);
    Player player(desk);
    at.out << "The exercise is played at\n\n    " << player.address() << "\n\nClosing the page or Ctrl-C ends it.\n"
           << std::flush;
    showInBrowser(player.address());
    player.run();
    const std::vector<std::string> findings = desk.close();
    for (const std::string& finding : findings) {
        at.out << finding << '\n';
    }
    at.out << "The question is closed.\n";
    return findings.empty() ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addPlay(CLI::App& command) {
    const auto request = std::make_shared<PlayRequest>();
    addQuestion(command, "question", request->question);
    command.add_option("--file", request->file, "A scenario file of your own instead");
    addCourse(command, request->course);
    return [request](const CommandContext& at) { return play(*request, at); };
}

} // namespace host
