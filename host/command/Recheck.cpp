#include "host/command/Commands.h"
#include "host/command/LiveCheck.h"
#include "host/run/TrainingHost.h"

#include "automation/LateBound.h"
#include "automation/Text.h"

#include <ostream>
#include <stdexcept>

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

/// Opens the learner's file as the working presentation. The one that the module has opened moves aside and stays open:
/// what the question has kept of it lives on.
void exchange(World& world, const Bytes& file, std::int32_t question) {
    const LateBound application(world.application());
    const LateBound prepared(application.get(u"ActivePresentation").to<ObjectPtr>());
    const auto path = prepared.get(u"FullName").to<std::u16string>();
    prepared.call(u"SaveAs", world.hostFolder() + u"delivered.ppt");
    world.writeFile(path, file);
    const LateBound presentations(application.get(u"Presentations").to<ObjectPtr>());
    const auto saved = presentations.call(u"Open", path).to<ObjectPtr>();
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(question) && check.assume != nullptr) {
            check.assume(world, saved);
        }
    }
}

Course courseFor(const RecheckRequest& request, const language::ScenarioFile& file, const WorldMaker& makeWorld) {
    try {
        return request.course.empty() ? Course(file, makeWorld) : Course(request.course, request.question);
    } catch (const std::runtime_error& error) {
        throw UsageError(error.what());
    }
}

/// The verdict of the module on the file.
Reading judge(World& world, const Course& course, std::int32_t question, const Bytes& file) {
    Witness nobody;
    TrainingHost host(world, course, question, nobody);
    host.initQuestion(question, world.hostFolder());
    try {
        exchange(world, file, question);
    } catch (const automation::Error& error) {
        host.finish();
        throw UsageError(toUtf8(error.description()));
    }
    Reading reading = host.check();
    host.finish();
    return reading;
}

} // namespace

ExitCode recheck(const RecheckRequest& request, const Library& library, const WorldMaker& makeWorld,
                 std::ostream& out) {
    const Bytes saved = contentsOf(request.file);
    const language::ScenarioFile file = load(library.fileOf(request.question));
    const Course course = courseFor(request, file, makeWorld);
    const WorldPtr world = makeWorld(nullptr);
    const Reading reading = judge(*world, course, request.question, saved);
    out << "Question " << request.question << ": " << reading.display() << '\n';
    for (const LiveCheck& check : liveChecks()) {
        if (check.concerns(request.question)) {
            out << "Not checked, a file does not tell: " << check.what << '\n';
        }
    }
    const bool isGood =
        !reading.error && !reading.erreurGenerale && (reading.causeErreur.empty() || reading.bravoNuance);
    return isGood ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
