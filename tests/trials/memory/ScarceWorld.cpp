#include "tests/trials/memory/ScarceWorld.h"

namespace trials::memory {

namespace {

using automation::ObjectPtr;

/// A module; its four operations are called where memory may fail.
class ScarceModule final : public ModuleClient {
public:
    ScarceModule(ModuleClient& module, Scarcity& scarcity) : module_(module), scarcity_(scarcity) {}

    void initQuestion(std::int32_t number, const std::u16string& folder, ObjectPtr& application,
                      std::int32_t& window) override {
        scarcity_.during([&] { module_.initQuestion(number, folder, application, window); });
    }
    void testePoint() override {
        scarcity_.during([&] { module_.testePoint(); });
    }
    bool erreurGenerale() override { return module_.erreurGenerale(); }
    std::u16string causeErreur() override { return module_.causeErreur(); }
    bool bravoNuance() override { return module_.bravoNuance(); }
    std::vector<std::u16string> complement() override { return module_.complement(); }
    void fermer() override {
        scarcity_.during([&] { module_.fermer(); });
    }
    void quitter(ObjectPtr& application, std::int32_t& window) override {
        scarcity_.during([&] { module_.quitter(application, window); });
    }

private:
    ModuleClient& module_;
    Scarcity& scarcity_;
};

class ScarceWorld final : public World {
public:
    ScarceWorld(WorldPtr world, Scarcity& scarcity) : world_(std::move(world)), module_(world_->module(), scarcity) {}

    ModuleClient& module() override { return module_; }
    void killHost() override { world_->killHost(); }
    std::u16string hostFolder() const override { return world_->hostFolder(); }
    PowerPoint& powerPoint() override { return world_->powerPoint(); }
    Registry& registry() override { return world_->registry(); }
    Files& files() override { return world_->files(); }
    std::vector<std::string> leftOpen() override { return world_->leftOpen(); }

private:
    WorldPtr world_;
    ScarceModule module_;
};

} // namespace

WorldPtr makeScarceWorld(WorldPtr world, Scarcity& scarcity) {
    return std::make_unique<ScarceWorld>(std::move(world), scarcity);
}

} // namespace trials::memory
