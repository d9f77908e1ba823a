#include "host/command/Commands.h"
#include "host/command/JsonStory.h"
#include "host/command/Options.h"
#include "host/command/PlainStory.h"
#include "host/command/Telling.h"
#include "host/language/Folding.h"
#include "host/language/Words.h"
#include "host/picture/Camera.h"
#include "host/reason/Explainer.h"
#include "host/run/Runner.h"
#include "host/run/Witnesses.h"
#include "host/world/OutputFile.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"

#include <algorithm>
#include <ostream>

namespace host {

namespace {

using automation::toUtf8;
using language::Scenario;
using language::ScenarioFile;

struct RunRequest {
    std::string question = "306"; ///< its number, or a scenario file
    std::string scenario;         ///< its title; empty for the first that ends in a success
    bool asJson = false;
    bool withTrace = false;
    std::string course;   ///< folder of the course's own files; empty for those that the scenario file builds
    std::string pictures; ///< folder for pictures of the slide before and after; empty for none
};

const Scenario& chosen(const ScenarioFile& file, const std::string& title) {
    const auto isWanted = [&](const Scenario& scenario) {
        const Expectation* const last = scenario.lastExpectation();
        return title.empty() ? last != nullptr && last->isSuccess() : toUtf8(scenario.title) == title;
    };
    const auto found = std::find_if(file.scenarios.begin(), file.scenarios.end(), isWanted);
    if (found == file.scenarios.end()) {
        throw UsageError(title.empty() ? file.name + " has no scenario that ends in a success"
                                       : file.name + " has no scenario \"" + title + "\"");
    }
    return *found;
}

void printValues(const Reading& reading, std::ostream& out) {
    out << "\nErreurGenerale: " << (reading.erreurGenerale ? "True" : "False")
        << "\nCauseErreur: " << toUtf8(reading.causeErreur)
        << "\nBravoNuance: " << (reading.bravoNuance ? "True" : "False")
        << "\nComplement: " << inQuotes(reading.complement) << '\n';
}

/// What a drawing of this command's begins with.
constexpr const char* drawn = "<!-- exercise-host run -->\n";

OutputFile outputOf(const std::filesystem::path& name, const std::string& extension) {
    return {toUtf8(name.u16string()) + "." + extension,
            extension == "svg" ? std::optional<std::string>(drawn) : std::nullopt, "another folder"};
}

void write(const Picture& picture, const std::filesystem::path& name, std::vector<std::string>& files) {
    if (!picture.bytes.empty()) {
        const OutputFile file = outputOf(name, picture.extension);
        file.write((picture.extension == "svg" ? drawn : "") + picture.bytes);
        files.push_back(file.name());
    }
}

/// Before the work: raises where pictures could not be written then.
void requirePlaceForPictures(const std::filesystem::path& folder) {
    if (std::error_code failed; std::filesystem::exists(folder, failed) && !std::filesystem::is_directory(folder)) {
        throw UsageError(toUtf8(folder.u16string()) + " is a file: name a folder for the pictures");
    }
    for (const char* const name : {"before", "after"}) {
        outputOf(folder / name, "svg").requireReplaceable();
    }
}

/// Writes what there is of slides before and after into a folder, and answers with the files. The first is the one that
/// tells most; the files of others are named after their slides.
std::vector<std::string> written(const std::vector<BeforeAfter>& slides, const std::filesystem::path& folder) {
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    std::vector<std::string> files;
    for (std::size_t i = 0; i < slides.size(); ++i) {
        const std::string which = i == 0 ? "" : "slide-" + std::to_string(slides[i].slide) + "-";
        write(slides[i].before, folder / (which + "before"), files);
        write(slides[i].after, folder / (which + "after"), files);
    }
    return files;
}

nlohmann::ordered_json toJson(const ScenarioFile& file, const Scenario& scenario, const Outcome& outcome) {
    const Reading& reading = outcome.lastReading;
    nlohmann::ordered_json object;
    object["question"] = file.question;
    object["file"] = file.name;
    object["scenario"] = toUtf8(scenario.title);
    object["passed"] = outcome.failures.empty();
    object["failures"] = nlohmann::ordered_json::array();
    for (const language::Remark& failure : outcome.failures) {
        object["failures"].push_back(failure.in(file.name));
    }
    object["ErreurGenerale"] = reading.erreurGenerale;
    object["CauseErreur"] = toUtf8(reading.causeErreur);
    object["BravoNuance"] = reading.bravoNuance;
    object["Complement"] = nlohmann::ordered_json::array();
    for (const std::u16string& text : reading.complement) {
        object["Complement"].push_back(toUtf8(text));
    }
    return object;
}

/// Runs one scenario and tells it, up to the four values that the host reads last.
ExitCode run(const RunRequest& request, const Library& library, const WorldMaker& makeWorld, std::ostream& out) {
    const ScenarioFile file = load(library.fileNamed(request.question));
    const Scenario& scenario = chosen(file, request.scenario);
    if (!request.pictures.empty()) {
        requirePlaceForPictures(pathOf(request.pictures));
    }
    PlainStory plain(out);
    JsonStory json;
    Story& story = request.asJson ? static_cast<Story&>(json) : plain;
    const auto trace =
        request.withTrace
            ? std::make_shared<automation::CallTrace>([&](const automation::TracedCall& call) { story.call(call); })
            : nullptr;

    std::optional<Course> course;
    if (!request.course.empty()) {
        course = courseOf(file, request.course, makeWorld);
        if (const std::string shortfall = shortfallOf(*course, file, makeWorld); !shortfall.empty()) {
            const nlohmann::ordered_json object{{"question", file.question}, {"shortfall", shortfall}};
            (request.asJson ? unfolded(out) : out) << (request.asJson ? object.dump(2) + '\n' : shortfall);
            return ExitCode::FellShort;
        }
    }
    const Runner runner = course ? Runner(file, std::move(*course), makeWorld) : Runner(file, makeWorld);
    if (!request.asJson) {
        out << "Question " << file.question << ": " << toUtf8(scenario.title) << "\n\n";
    }
    std::vector<BeforeAfter> slides;
    reason::Explainer explainer(file.contract, trace);
    const auto makeWitness = [&](World& world) {
        auto witnesses = std::make_unique<Witnesses>();
        witnesses->add(explainer);
        witnesses->add(std::make_unique<Telling>(world, story));
        if (!request.pictures.empty()) {
            witnesses->add(
                std::make_unique<Camera>(world, [&](std::vector<BeforeAfter> seen) { slides = std::move(seen); }));
        }
        return witnesses;
    };
    const Outcome outcome = runner.run(scenario, makeWitness, explainer.observer());
    const std::vector<std::string> pictures =
        request.pictures.empty() ? std::vector<std::string>() : written(slides, pathOf(request.pictures));
    if (request.asJson) {
        nlohmann::ordered_json object = toJson(file, scenario, outcome);
        if (!request.pictures.empty()) {
            object["pictures"] = pictures;
        }
        object["story"] = json.chapters();
        unfolded(out) << object.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
    } else {
        for (const language::Remark& failure : outcome.failures) {
            out << '\n' << failure.in(file.name) << '\n';
        }
        printValues(outcome.lastReading, out);
        for (const std::string& picture : pictures) {
            unfolded(out) << "Picture: " << picture << '\n';
        }
        if (!request.pictures.empty() && pictures.empty()) {
            out << "No picture: no slide was to be seen at a check\n";
        }
    }
    return outcome.failures.empty() ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addRun(CLI::App& command) {
    const auto request = std::make_shared<RunRequest>();
    addScenarioFile(command, request->question)->capture_default_str();
    command.add_option("--scenario", request->scenario, "Its title (the first that ends in a success)");
    command.add_flag("--json", request->asJson, "Print one JSON object");
    command.add_flag("--trace", request->withTrace, "List every call of the module, its time and answer");
    command.add_option("--picture", request->pictures, "Folder for pictures of the slide, before and after");
    addCourse(command, request->course);
    return [request](const CommandContext& at) {
        return run(*request, at.library, request->withTrace ? at.worlds.traced : at.worlds.chosen(), at.out);
    };
}

} // namespace host
