#include "host/command/Commands.h"
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

/// What a question looks at in the running PowerPoint, in words; empty where the file says all.
std::string_view liveCheckOf(std::int32_t question) noexcept {
    switch (question) {
    case 310: return "that the text shape is selected, and nothing else (taken as selected)";
    case 312: return "the state of the toolbar of curves (taken as it is in a new PowerPoint)";
    default: return "";
    }
}

/// Selects the shape that question 310 looks for, where it stands on the slide by itself.
void selectWhatIsLookedFor(const LateBound& presentation) {
    const LateBound slides(presentation.get(u"Slides").to<ObjectPtr>());
    const LateBound slide(slides.call(u"Item", std::int32_t{1}).to<ObjectPtr>());
    const LateBound shapes(slide.get(u"Shapes").to<ObjectPtr>());
    const auto count = shapes.get(u"Count").to<std::int32_t>();
    for (std::int32_t i = 1; i <= count; ++i) {
        const LateBound shape(shapes.call(u"Item", i).to<ObjectPtr>());
        const LateBound tags(shape.get(u"Tags").to<ObjectPtr>());
        if (tags.call(u"Item", u"Identite").to<std::u16string>() == u"ZOR2") {
            shape.call(u"Select");
        }
    }
}

/// Puts the learner's file in the place of the working presentation that the module has opened.
void exchange(World& world, const Bytes& file, std::int32_t question) {
    const LateBound application(world.application());
    const LateBound working(application.get(u"ActivePresentation").to<ObjectPtr>());
    const auto path = working.get(u"FullName").to<std::u16string>();
    working.call(u"Close");
    world.writeFile(path, file);
    const LateBound presentations(application.get(u"Presentations").to<ObjectPtr>());
    const LateBound saved(presentations.call(u"Open", path).to<ObjectPtr>());
    if (question == 310) {
        selectWhatIsLookedFor(saved);
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
    if (const std::string_view unseen = liveCheckOf(request.question); !unseen.empty()) {
        out << "Not checked, a file does not tell: " << unseen << '\n';
    }
    const bool isGood =
        !reading.error && !reading.erreurGenerale && (reading.causeErreur.empty() || reading.bravoNuance);
    return isGood ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
