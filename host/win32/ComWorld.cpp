#include "host/win32/ComWorld.h"

#include "exercises/API.h"
#include "host/win32/BorrowedFiles.h"
#include "host/win32/BorrowedRegistry.h"
#include "host/win32/Desktop.h"
#include "host/win32/DesktopPowerPoint.h"
#include "host/win32/VtableModule.h"
#include "host/world/LateBoundModule.h"
#include "module/Module.h"
#include "platform/observed/ObservedServices.h"
#include "platform/win32/Win32Services.h"

#include <optional>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr std::u16string_view courseFolder = u"C:\\Formation\\";
constexpr std::u16string_view general = u"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General";
constexpr std::u16string_view templates = u"Mod\u00E8les";
constexpr std::u16string_view shellFolders = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

/// True where the registered library, if it is loaded, says that nobody holds anything of it.
bool canLibraryUnload() {
    const HMODULE library = GetModuleHandleW(L"K73053.dll");
    if (library == nullptr) {
        return true;
    }
    using Question = HRESULT(WINAPI*)();
    const FARPROC entry = GetProcAddress(library, "DllCanUnloadNow");
    return entry != nullptr && reinterpret_cast<Question>(reinterpret_cast<void*>(entry))() == S_OK;
}

class ComWorld final : public World {
public:
    ComWorld(std::shared_ptr<Desktop> desktop, automation::ObserverPtr observer)
        : desktop_(std::move(desktop)), observer_(std::move(observer)) {
        setUpRegistry();
    }
    ~ComWorld() override {
        module_.reset();
        killed_.clear();
        powerPoint_.dismiss();
        desktop_->journal().giveBack();
    }

    ModuleClient& module() override {
        if (!module_) {
            module_ = observer_ ? observedModule() : std::make_unique<VtableModule>();
        }
        return *module_;
    }
    void killHost() override { killed_.push_back(std::move(module_)); }
    std::u16string hostFolder() const override { return std::u16string(courseFolder); }

    PowerPoint& powerPoint() override { return powerPoint_; }
    Registry& registry() override { return registry_; }
    Files& files() override { return files_; }

    std::vector<std::string> leftOpen() override {
        module_.reset();
        killed_.clear();
        return canLibraryUnload() ? std::vector<std::string>()
                                  : std::vector<std::string>{"the library cannot be unloaded"};
    }

private:
    /// What the module of this program asks of Windows, seen by an observer.
    struct ObservedWindows {
        explicit ObservedWindows(const automation::ObserverPtr& observer) : observed(real.services(), observer) {}

        platform::Win32Services real;
        platform::ObservedServices observed;
        exercises::API shared;
    };

    /// The same module as the library's, in this program: no observer sees what leaves the library.
    std::unique_ptr<ModuleClient> observedModule() {
        ObservedWindows& windows = windows_.emplace(observer_);
        return std::make_unique<LateBoundModule>(
            std::make_shared<k73053::Module>(windows.shared, windows.observed.services()), observer_);
    }

    /// Settings of a user who has worked with PowerPoint a little.
    void setUpRegistry() {
        for (const std::u16string_view name : folderSettings::names) {
            registry_.setText(folderSettings::key, name, u"C:\\Mes documents\\" + std::u16string(name) + u"\\");
        }
        registry_.setText(general, u"Templates", templates);
        registry_.remove(general, u"UserTemplates");
        registry_.setMeasurementSystem(u"0");
        // The folder that InitQuestion makes there.
        const fs::path profile(registry_.text(shellFolders, u"AppData"));
        const fs::path own = profile / L"Microsoft" / templates / u"ZOR Mod\u00E8les";
        if (!fs::exists(own)) {
            files_.announce(own);
        }
    }

    std::shared_ptr<Desktop> desktop_;
    BorrowedFiles files_{desktop_->journal(), fs::path(courseFolder).parent_path()};
    BorrowedRegistry registry_{desktop_->journal()};
    DesktopPowerPoint powerPoint_{desktop_->journal()};
    automation::ObserverPtr observer_;
    std::optional<ObservedWindows> windows_;
    std::vector<std::unique_ptr<ModuleClient>> killed_; ///< by their hosts: nobody calls them
    std::unique_ptr<ModuleClient> module_;
};

} // namespace

WorldMaker makeComWorlds(std::int32_t powerPointBits) {
    return [desktop = std::make_shared<Desktop>(powerPointBits)](const automation::ObserverPtr& observer) -> WorldPtr {
        desktop->makeReady();
        return std::make_unique<ComWorld>(desktop, observer);
    };
}

} // namespace host
