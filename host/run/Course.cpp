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

automation::LateBound activePresentation(World& world) {
    const automation::LateBound application(world.powerPoint().application());
    return automation::LateBound(application.get(u"ActivePresentation").to<automation::ObjectPtr>());
}

/// What the active presentation lacks of these expectations. A variable that cannot be set ends them.
std::vector<language::Remark> shortcomingsIn(World& world, const std::vector<language::Statement>& expectations) {
    WorldStage stage(world);
    language::Interpreter interpreter(stage);
    std::vector<language::Remark> remarks;
    for (const language::Statement& statement : expectations) {
        try {
            interpreter.execute(statement);
        } catch (const language::Failure& failure) {
            remarks.push_back(failure.remark);
            if (std::holds_alternative<language::Assignment>(statement.node)) {
                break;
            }
        }
    }
    return remarks;
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
    if (!file.contract.delivered.empty()) {
        // It is looked at as it lies in its file.
        activePresentation(*world).call(u"Close");
        const automation::LateBound application(world->powerPoint().application());
        automation::LateBound(application.get(u"Presentations").to<automation::ObjectPtr>()).call(u"Open", built);
        shortcomings_ = shortcomingsIn(*world, file.contract.delivered);
    }
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
    const std::u16string wanted = std::u16string(courseNumber) + number + u".ppt";
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

std::vector<std::u16string> Course::deliver(World& world, std::int32_t question) const {
    std::u16string name = std::u16string(courseNumber) + automation::decimal(question) + u".ppt";
    world.files().write(world.hostFolder() + name, presentation_);
    std::vector<std::u16string> names{std::move(name)};
    for (const auto& [other, content] : others_) {
        world.files().write(world.hostFolder() + other, content);
        names.push_back(other);
    }
    return names;
}

} // namespace host
