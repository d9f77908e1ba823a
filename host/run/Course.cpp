#include "host/run/Course.h"

#include "automation/LateBound.h"
#include "automation/Text.h"
#include "host/language/Interpreter.h"
#include "host/run/WorldStage.h"

namespace host {

namespace {

constexpr std::u16string_view courseNumber = u"07305";
constexpr std::u16string_view builtName = u"cours.ppt";

} // namespace

Course::Course(const language::ScenarioFile& file, const WorldMaker& makeWorld) {
    const WorldPtr world = makeWorld(nullptr);
    const std::u16string folder = world->hostFolder();
    const std::u16string built = folder + std::u16string(builtName);
    world->startPowerPoint();
    WorldStage stage(*world);
    language::Interpreter interpreter(stage);
    for (const language::Statement& statement : file.course) {
        interpreter.execute(statement);
    }
    interpreter.forget();
    {
        const automation::LateBound application(world->application());
        const automation::LateBound presentation(application.get(u"ActivePresentation").to<automation::ObjectPtr>());
        presentation.call(u"SaveAs", built);
        presentation.call(u"Close");
    }
    world->closePowerPoint();
    for (const std::u16string& name : world->filesIn(folder)) {
        Bytes content = world->readFile(folder + name);
        if (automation::equalIgnoringCase(name, builtName)) {
            presentation_ = std::move(content);
        } else {
            others_.emplace_back(name, std::move(content));
        }
    }
}

std::vector<std::u16string> Course::deliver(World& world, std::int32_t question) const {
    std::u16string name = std::u16string(courseNumber) + automation::decimal(question) + u".ppt";
    world.writeFile(world.hostFolder() + name, presentation_);
    std::vector<std::u16string> names{std::move(name)};
    for (const auto& [other, content] : others_) {
        world.writeFile(world.hostFolder() + other, content);
        names.push_back(other);
    }
    return names;
}

} // namespace host
