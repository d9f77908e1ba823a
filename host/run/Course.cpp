#include "host/run/Course.h"

#include "automation/LateBound.h"
#include "automation/Text.h"
#include "host/language/Interpreter.h"
#include "host/run/WorldStage.h"
#include "host/world/RealFile.h"

#include <algorithm>
#include <stdexcept>

namespace host {

namespace {

constexpr std::u16string_view courseNumber = u"07305";
constexpr std::u16string_view builtName = u"cours.ppt";

std::u16string nameFor(std::int32_t question) {
    return std::u16string(courseNumber) + automation::decimal(question) + u".ppt";
}

automation::LateBound activePresentation(World& world) {
    const automation::LateBound application(world.powerPoint().application());
    return automation::LateBound(application.get(u"ActivePresentation").to<automation::ObjectPtr>());
}

} // namespace

Course::Course(const language::ScenarioFile& file, const WorldMaker& makeWorld) : isBuilt_(true) {
    const WorldPtr world = makeWorld(nullptr);
    const std::u16string folder = world->hostFolder();
    const std::u16string built = folder + std::u16string(builtName);
    world->powerPoint().start();
    WorldStage stage(*world);
    language::Interpreter interpreter(stage);
    for (const language::Statement& statement : file.course) {
        interpreter.execute(statement);
    }
    interpreter.forget();
    activePresentation(*world).call(u"SaveAs", built);
    activePresentation(*world).call(u"Close");
    world->powerPoint().close();
    for (const std::u16string& name : world->files().namesIn(folder)) {
        Bytes content = world->files().read(folder + name);
        if (automation::equalIgnoringCase(name, builtName)) {
            presentation_ = std::move(content);
        } else {
            others_.emplace_back(name, std::move(content));
        }
    }
}

Course::Course(const std::filesystem::path& folder, std::int32_t question) : isBuilt_(false) {
    const std::u16string number = automation::decimal(question);
    const std::u16string wanted = nameFor(question);
    bool isFound = false;
    std::error_code failure;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(folder, failure)) {
        if (!entry.is_regular_file() || !entry.path().stem().u16string().ends_with(number)) {
            continue;
        }
        const std::u16string name = entry.path().filename().u16string();
        Bytes content = contentsOf(entry.path());
        if (automation::equalIgnoringCase(name, wanted)) {
            presentation_ = std::move(content);
            isFound = true;
        } else {
            others_.emplace_back(name, std::move(content));
        }
    }
    if (failure) {
        throw std::runtime_error(folder.string() + " cannot be read: " + failure.message());
    }
    if (!isFound) {
        throw std::runtime_error("there is no " + automation::toUtf8(wanted) + " in " + folder.string());
    }
    std::sort(others_.begin(), others_.end());
}

std::vector<std::pair<std::u16string, Bytes>> Course::filesFor(std::int32_t question) const {
    std::vector<std::pair<std::u16string, Bytes>> files{{nameFor(question), presentation_}};
    files.insert(files.end(), others_.begin(), others_.end());
    return files;
}

std::vector<std::u16string> Course::deliver(World& world, std::int32_t question) const {
    std::vector<std::u16string> names;
    for (const auto& [name, content] : filesFor(question)) {
        world.files().write(world.hostFolder() + name, content);
        names.push_back(name);
    }
    return names;
}

} // namespace host
