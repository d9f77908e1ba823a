#include "host/world/EmbeddedWorld.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "exercises/API.h"
#include "host/world/LateBoundModule.h"
#include "host/world/TemporaryFolder.h"
#include "module/Module.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"

#include <fstream>
#include <iterator>
#include <optional>

namespace host {

namespace {

namespace fs = std::filesystem;

using automation::ObjectPtr;
using automation::ObserverPtr;
using automation::RunTimeError;

constexpr std::u16string_view courseFolder = u"C:\\Formation\\";

class MachineWorld final : public EmbeddedWorld {
public:
    explicit MachineWorld(const ObserverPtr& observer) : observer_(observer), machine_(root_.path()) {
        if (observer) {
            observed_.emplace(machine_.services(), observer);
        }
        fs::create_directories(machine_.realPath(courseFolder));
    }

    ModuleClient& module() override {
        if (!module_) {
            module_.emplace(
                std::make_shared<k73053::Module>(shared_, observed_ ? observed_->services() : machine_.services()),
                observer_);
        }
        return *module_;
    }
    std::u16string hostFolder() const override { return std::u16string(courseFolder); }

    const simulator::Machine& machine() const noexcept override { return machine_; }

    ObjectPtr application() override { return machine_.application(); }
    std::int32_t mainWindow() override { return machine_.mainWindow(); }
    void startPowerPoint() override { machine_.startPowerPoint(); }
    void closePowerPoint() override { machine_.endPowerPoint(); }
    void killPowerPoint() override { machine_.endPowerPoint(); }
    void killPowerPointAtCall(std::int32_t n) override { machine_.endPowerPointAtCall(n); }
    void hidePowerPoint() override { machine_.hidePowerPoint(); }
    void minimizePowerPoint() override { machine_.minimizePowerPoint(); }
    void setBusy(bool busy) override { machine_.setBusy(busy); }
    void openDialog(std::u16string_view title) override { machine_.openDialog(title); }
    std::size_t dialogs() override { return machine_.dialogs(); }
    void uninstallPowerPoint() override { machine_.uninstallPowerPoint(); }
    ObjectPtr standIn() override { automation::raise(RunTimeError::CannotCreateObject); }
    std::string runScript(const fs::path& /*script*/, const std::vector<std::u16string>& /*arguments*/) override {
        automation::raise(RunTimeError::CannotCreateObject);
    }

    std::u16string registryText(std::u16string_view key, std::u16string_view name) override {
        return machine_.registryText(key, name);
    }
    void setRegistryText(std::u16string_view key, std::u16string_view name, std::u16string_view text) override {
        machine_.setRegistryText(key, name, text);
    }
    void deleteRegistryValue(std::u16string_view key, std::u16string_view name) override {
        machine_.deleteRegistryValue(key, name);
    }
    void denyRegistryKey(std::u16string_view key, bool denied) override { machine_.denyRegistryKey(key, denied); }
    void setMeasurementSystem(std::u16string_view system) override {
        machine_.setMeasurementSystem(automation::toUtf8(system));
    }

    std::vector<std::u16string> filesIn(std::u16string_view path) override {
        std::vector<std::u16string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(machine_.realPath(path))) {
            if (entry.is_regular_file()) {
                names.push_back(entry.path().filename().u16string());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    bool fileExists(std::u16string_view path) override { return fs::is_regular_file(machine_.realPath(path)); }
    Bytes readFile(std::u16string_view path) override {
        std::ifstream file(existing(path), std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    void writeFile(std::u16string_view path, const Bytes& content) override {
        machine_.createFile(path);
        std::ofstream file(machine_.realPath(path), std::ios::binary | std::ios::trunc);
        std::copy(content.begin(), content.end(), std::ostreambuf_iterator<char>(file));
    }
    void deleteFile(std::u16string_view path) override { fs::remove(existing(path)); }
    void setFileAttributes(std::u16string_view path, std::uint32_t attributes) override {
        machine_.setAttributes(path, attributes);
    }

    std::vector<std::string> leftOpen() override {
        const std::size_t keys = machine_.openRegistryKeys();
        return keys == 0 ? std::vector<std::string>() : std::vector{std::to_string(keys) + " registry keys not closed"};
    }

private:
    [[nodiscard]] fs::path existing(std::u16string_view path) const {
        fs::path real = machine_.realPath(path);
        if (!fs::is_regular_file(real)) {
            automation::raise(RunTimeError::FileNotFound);
        }
        return real;
    }

    ObserverPtr observer_;
    TemporaryFolder root_;
    simulator::Machine machine_;
    std::optional<platform::ObservedServices> observed_;
    exercises::API shared_;
    std::optional<LateBoundModule> module_;
};

} // namespace

std::unique_ptr<EmbeddedWorld> makeEmbeddedWorld(const ObserverPtr& observer) {
    return std::make_unique<MachineWorld>(observer);
}

} // namespace host
