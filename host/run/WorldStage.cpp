#include "host/run/WorldStage.h"

#include "automation/Text.h"
#include "host/run/FilesMoves.h"
#include "host/run/HostMoves.h"
#include "host/run/LearnerMoves.h"
#include "host/run/PowerPointMoves.h"
#include "host/run/RegistryMoves.h"
#include "host/world/Refusal.h"

namespace host {

using automation::ObjectPtr;

WorldStage::WorldStage(World& world, TrainingHost* host) : world_(world), host_(host) {
    objects_ = {{u"PowerPoint", std::make_shared<PowerPointMoves>(world.powerPoint())},
                {u"Learner", std::make_shared<LearnerMoves>(world.powerPoint())},
                {u"Registry", std::make_shared<RegistryMoves>(world.registry())},
                {u"Files", std::make_shared<FilesMoves>(world)}};
    if (host != nullptr) {
        objects_.emplace_back(u"Host", std::make_shared<HostMoves>(*host));
    }
}

ObjectPtr WorldStage::application() {
    ObjectPtr application = world_.powerPoint().application();
    if (!application) {
        refuse(u"PowerPoint does not run");
    }
    return application;
}

ObjectPtr WorldStage::object(std::u16string_view name) {
    for (const auto& [known, object] : objects_) {
        if (automation::equalIgnoringCase(known, name)) {
            return object;
        }
    }
    return nullptr;
}

Reading WorldStage::testePoint() {
    if (host_ == nullptr) {
        automation::raise(automation::RunTimeError::ObjectNotSet);
    }
    return host_->check();
}

void WorldStage::beginTurn() {
    if (patience_.count() != 0 && std::chrono::steady_clock::now() - begun_ > patience_) {
        refuse(u"the statement has been ended, since it has taken more than " + automation::decimal(patience_.count()) +
               u" seconds");
    }
}

} // namespace host
