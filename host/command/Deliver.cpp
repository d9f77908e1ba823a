#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/language/Folding.h"
#include "host/world/OutputFile.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"

#include <ostream>

namespace host {

namespace {

struct DeliverRequest {
    std::string question; ///< its number, or a scenario file
    std::string folder;
};

/// Writes the files that a question's scenario file builds. A file that is there already is never touched, nor is
/// anything written then.
ExitCode deliver(const DeliverRequest& request, const CommandContext& at) {
    const language::ScenarioFile file = load(at.library.fileNamed(request.question));
    const auto files = courseOf(file, {}, at.worlds.embedded).filesFor(file.question);
    const std::filesystem::path folder = pathOf(request.folder);
    std::vector<OutputFile> outputs;
    for (const auto& [name, content] : files) {
        outputs.emplace_back(automation::toUtf8((folder / name).u16string()), std::nullopt, "move it away");
        outputs.back().requireReplaceable();
    }
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    auto output = outputs.begin();
    for (const auto& [name, content] : files) {
        (output++)->write(std::string(content.begin(), content.end()));
        unfolded(at.out) << (folder / name).string() << '\n';
    }
    return ExitCode::Good;
}

} // namespace

Action addDeliver(CLI::App& command) {
    const auto request = std::make_shared<DeliverRequest>();
    addScenarioFile(command, request->question);
    command.add_option("folder", request->folder, "Folder for the files; made where it is not there")->required();
    return [request](const CommandContext& at) { return deliver(*request, at); };
}

} // namespace host
