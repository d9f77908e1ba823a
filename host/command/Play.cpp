#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/play/Player.h"
#ifdef _WIN32
#include "host/win32/Browser.h"
#else
#include "host/posix/Browser.h"
#endif

#include "exercises/Catalogue.h"

#include <ostream>

namespace host {

namespace {

struct PlayRequest {
    std::string question; ///< its number, or a scenario file
    std::string course;   ///< folder of the course's own files; empty for those that the scenario file builds
};

/// The question of a file, ready to be played, and the one behind it where the file is one of the library's.
PlayedQuestion played(const std::filesystem::path& path, const PlayRequest& request, const CommandContext& at) {
    language::ScenarioFile file = load(path);
    Course course = courseOf(file, request.course, at.worlds.embedded);
    at.out << shortfallOf(course, file, at.worlds.embedded) << std::flush;
    const bool isLast = file.question == exercises::lastQuestion || path != at.library.fileOf(file.question);
    const std::int32_t next = isLast ? 0 : file.question + 1;
    return {std::move(file), std::move(course), next};
}

/// Serves a page on which the author plays a question in the browser, until it is closed.
ExitCode play(const PlayRequest& request, const CommandContext& at) {
    Desk desk(
        played(at.library.fileNamed(request.question), request, at),
        [&](std::int32_t question) { return played(at.library.fileOf(question), request, at); }, at.worlds.embedded);
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
    addScenarioFile(command, request->question);
    addCourse(command, request->course);
    return [request](const CommandContext& at) { return play(*request, at); };
}

} // namespace host
