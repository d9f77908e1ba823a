#include "host/command/Commands.h"
#include "host/command/LiveCheck.h"
#include "host/command/Options.h"
#include "host/reason/Explainer.h"
#include "host/reason/Told.h"
#include "host/run/TrainingHost.h"
#include "host/world/Members.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"

#include <ostream>

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

/// Opens the learner's file as the working presentation. The one that the module has opened moves aside and stays open:
/// what the question has kept of it lives on.
void exchange(World& world, const Bytes& file, std::int32_t question) {
    const LateBound application(world.powerPoint().application());
    const LateBound prepared = memberOf(application, u"ActivePresentation");
    const auto path = prepared.get(u"FullName").to<std::u16string>();
    prepared.call(u"SaveAs", world.hostFolder() + u"delivered.ppt");
    world.files().write(path, file);
    const auto saved = memberOf(application, u"Presentations").call(u"Open", path).to<ObjectPtr>();
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(question) && check.assume != nullptr) {
            check.assume(world, saved);
        }
    }
}

struct RecheckRequest {
    std::string file; ///< a working presentation that a learner has saved
    std::int32_t question = 0;
    std::string course; ///< folder of the course's own files; empty for those that the scenario file builds
};

/// The verdict of the module on the file.
Reading judge(World& world, const Course& course, const RecheckRequest& request, Witness& witness) {
    const Bytes saved = contentsOf(pathOf(request.file));
    TrainingHost host(world, course, request.question, witness);
    host.initQuestion(request.question, world.hostFolder());
    try {
        exchange(world, saved, request.question);
    } catch (const automation::Error& error) {
        host.finish();
        throw UsageError(request.file + ": " + toUtf8(error.description()));
    }
    Reading reading = host.check();
    host.finish();
    return reading;
}

/// Judges a saved working presentation and names the checks that a file does not allow.
ExitCode recheck(const RecheckRequest& request, const CommandContext& at) {
    const language::ScenarioFile file = load(at.library.fileOf(request.question));
    const Course course = courseOf(file, request.course, at.worlds.embedded);
    at.out << shortfallOf(course, file, at.worlds.embedded);
    reason::Explainer explainer(file.contract);
    const WorldPtr world = at.worlds.embedded(explainer.observer());
    const Reading reading = judge(*world, course, request, explainer);
    at.out << "Question " << request.question << ": " << reading.display() << '\n';
    for (const std::string& line : {reason::sentence(reading.meaning), reading.reason}) {
        at.out << line << (line.empty() ? "" : "\n");
    }
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(request.question)) {
            at.out << "Not checked, a file does not tell: " << check.what << '\n';
        }
    }
    const bool isGood =
        !reading.error && !reading.erreurGenerale && (reading.causeErreur.empty() || reading.bravoNuance);
    return isGood ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addRecheck(CLI::App& command) {
    const auto request = std::make_shared<RecheckRequest>();
    command.add_option("file", request->file, "A working presentation that a learner has saved")->required();
    addQuestion(command, "--question", request->question)->required();
    addCourse(command, request->course);
    return [request](const CommandContext& at) { return recheck(*request, at); };
}

} // namespace host
