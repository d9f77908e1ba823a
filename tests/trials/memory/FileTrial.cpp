#include "tests/trials/memory/FileTrial.h"

#include "host/language/Expectation.h"
#include "host/world/Members.h"

namespace trials::memory {

using automation::LateBound;
using automation::ObjectPtr;

Holdings::Holdings(World& world) : presentations(Snapshot(world).presentations.value()) {
    for (const std::u16string& name : world.files().namesIn(world.hostFolder())) {
        files.emplace_back(name, world.files().read(world.hostFolder() + name));
    }
}

FileOutcome tryFile(World& world, const std::u16string& name, const FileOperation& operation, std::size_t position,
                    ScarceMemory::Lasting lasting) {
    const std::u16string path = world.hostFolder() + name;
    const std::u16string other = world.hostFolder() + u"autre.ppt";
    world.files().write(other, world.files().read(path));
    world.powerPoint().start();
    const LateBound presentations = memberOf(LateBound(world.powerPoint().application()), u"Presentations");
    LateBound presentation;
    if (operation.member != u"Open") {
        presentation = LateBound(presentations.call(u"Open", path).to<ObjectPtr>());
        memberOf(presentation, u"Slides").call(u"Add", 1, 12);
    }
    const auto perform = [&] {
        if (operation.member == u"Open") {
            presentations.call(operation.member, path);
        } else if (operation.member == u"Save") {
            presentation.call(operation.member);
        } else {
            presentation.call(operation.member, other);
        }
    };
    const Holdings before(world);
    const ScarceStep step(position, lasting, perform);
    const Holdings failed(world);
    if (step.error) {
        perform();
    }
    return {step.error, step.asked, step.hasStruck, before, failed, Holdings(world)};
}

std::vector<std::string> findingsIn(const FileOutcome& outcome, const FileOutcome& flawless) {
    std::vector<std::string> findings;
    if (outcome.error && !(outcome.hasStruck && outcome.error->is(automation::RunTimeError::OutOfMemory))) {
        findings.push_back("it raises " + inWords(*outcome.error));
    }
    if (outcome.failed.files != outcome.before.files && outcome.failed.files != flawless.settled.files) {
        findings.emplace_back("it leaves other files than before, or than it should");
    }
    if (outcome.settled != flawless.settled) {
        findings.emplace_back("done again it does not come to the same");
    }
    return findings;
}

} // namespace trials::memory
