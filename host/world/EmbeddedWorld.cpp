#include "host/world/EmbeddedWorld.h"

#include "automation/Text.h"
#include "exercises/API.h"
#include "host/world/LateBoundModule.h"
#include "host/world/TemporaryFolder.h"
#include "module/Module.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"

#include <optional>

namespace host {

namespace {

namespace fs = std::filesystem;

using automation::ObjectPtr;
using automation::ObserverPtr;

constexpr std::u16string_view courseFolder = u"C:\\Formation\\";

class MachinePowerPoint final : public PowerPoint {
public:
    explicit MachinePowerPoint(simulator::Machine& machine) noexcept : machine_(machine) {}

    ObjectPtr application() override { return machine_.application(); }
    std::int32_t window() override { return machine_.mainWindow(); }
    void start() override { machine_.startPowerPoint(); }
    void close() override { machine_.endPowerPoint(); }
    void kill() override { machine_.endPowerPoint(); }
    void killAtCall(std::int32_t n) override { machine_.endPowerPointAtCall(n); }
    void hide() override { machine_.hidePowerPoint(); }
    void minimize() override { machine_.minimizePowerPoint(); }
    void setBusy(bool busy) override { machine_.setBusy(busy); }
    void openDialog(std::u16string_view title) override { machine_.openDialog(title); }
    std::size_t dialogs() override { return machine_.dialogs(); }
    void closeDialog() override { machine_.closeDialog(); }
    void answerSaving(std::u16string_view answer) override { machine_.answerSaving(answer); }
    void uninstall() override { machine_.uninstallPowerPoint(); }

private:
    simulator::Machine& machine_;
};

class MachineRegistry final : public Registry {
public:
    explicit MachineRegistry(simulator::Machine& machine) noexcept : machine_(machine) {}

    std::u16string text(std::u16string_view key, std::u16string_view name) override {
        return machine_.registryText(key, name);
    }
    void setText(std::u16string_view key, std::u16string_view name, std::u16string_view text) override {
        machine_.setRegistryText(key, name, text);
    }
    void remove(std::u16string_view key, std::u16string_view name) override { machine_.deleteRegistryValue(key, name); }
    void deny(std::u16string_view key, bool denied) override { machine_.denyRegistryKey(key, denied); }
    void setMeasurementSystem(std::u16string_view system) override {
        machine_.setMeasurementSystem(automation::toUtf8(system));
    }

private:
    simulator::Machine& machine_;
};

class MachineFiles final : public Files {
public:
    explicit MachineFiles(simulator::Machine& machine) noexcept : machine_(machine) {}

    void setAttributes(std::u16string_view path, std::uint32_t attributes) override {
        machine_.setAttributes(path, attributes);
    }

private:
    fs::path realPath(std::u16string_view path) const override { return machine_.realPath(path); }
    void prepareToWrite(std::u16string_view path) override { machine_.createFile(path); }

    simulator::Machine& machine_;
};

class MachineWorld final : public EmbeddedWorld {
public:
    explicit MachineWorld(const ObserverPtr& observer) : observer_(observer) {
        if (observer) {
            observed_.emplace(machine_.services(), observer);
        }
        fs::create_directories(machine_.realPath(courseFolder));
    }

    ModuleClient& module() override {
        if (!loaded_) {
            const platform::Services& services = observed_ ? observed_->services() : machine_.services();
            loaded_ = std::make_unique<Loaded>();
            loaded_->module.emplace(std::make_shared<k73053::Module>(loaded_->shared, services), observer_);
        }
        return *loaded_->module;
    }
    void killHost() override { killed_.push_back(std::move(loaded_)); }
    std::u16string hostFolder() const override { return std::u16string(courseFolder); }
    PowerPoint& powerPoint() override { return powerPoint_; }
    Registry& registry() override { return registry_; }
    Files& files() override { return files_; }
    const simulator::Machine& machine() const noexcept override { return machine_; }

    void followDocumentation() { machine_.followDocumentation(); }

    std::vector<std::string> leftOpen() override {
        std::vector<std::string> left;
        if (const std::size_t keys = machine_.openRegistryKeys(); keys != 0) {
            left.push_back(std::to_string(keys) + " registry keys not closed");
        }
        for (const std::u16string& name : machine_.droppedUnasked()) {
            left.push_back("PowerPoint asks whether " + automation::toUtf8(name) +
                           " is to be saved: say before what is answered (PowerPoint.AnswerSaving \"discard\")");
        }
        return left;
    }

private:
    /// The library in the process of a host.
    struct Loaded {
        exercises::API shared;
        std::optional<LateBoundModule> module;
    };

    ObserverPtr observer_;
    TemporaryFolder root_;
    simulator::Machine machine_{root_.path()};
    MachinePowerPoint powerPoint_{machine_};
    MachineRegistry registry_{machine_};
    MachineFiles files_{machine_};
    std::optional<platform::ObservedServices> observed_;
    std::vector<std::unique_ptr<Loaded>> killed_;
    std::unique_ptr<Loaded> loaded_;
};

} // namespace

std::unique_ptr<EmbeddedWorld> makeEmbeddedWorld(const ObserverPtr& observer) {
    return std::make_unique<MachineWorld>(observer);
}

std::unique_ptr<EmbeddedWorld> makeDocumentedWorld(const ObserverPtr& observer) {
    auto world = std::make_unique<MachineWorld>(observer);
    world->followDocumentation();
    return world;
}

} // namespace host
