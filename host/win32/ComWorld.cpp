#include "host/win32/ComWorld.h"

#include "automation/Text.h"
#include "automation/com/WideText.h"
#include "host/win32/BorrowedFiles.h"
#include "host/win32/BorrowedRegistry.h"
#include "host/win32/Desktop.h"
#include "host/win32/ScriptHost.h"
#include "host/win32/VtableModule.h"
#include "simulator/win32/Registration.h"
#include "simulator/win32/StandInIdentity.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>

namespace host {

namespace {

namespace fs = std::filesystem;

using automation::ObjectPtr;
using automation::RunTimeError;
using automation::com::fromWide;

constexpr std::u16string_view folder = u"C:\\Formation\\";
const std::wstring general = L"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General";
const std::wstring templates = L"Mod\u00E8les";
constexpr std::u16string_view shellFolders = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
const std::wstring international = L"Control Panel\\International";
const std::wstring measure = L"iMeasure";

std::wstring wide(std::u16string_view text) {
    return {text.begin(), text.end()};
}

[[noreturn]] void refuse(std::u16string text) {
    throw automation::Error(static_cast<std::int32_t>(RunTimeError::CannotCreateObject), u"exercise-host",
                            std::move(text));
}

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
    explicit ComWorld(std::shared_ptr<Desktop> desktop) : desktop_(std::move(desktop)) { setUpRegistry(); }
    ~ComWorld() override {
        module_.reset();
        powerPoint_.dismiss();
        desktop_->journal().giveBack();
    }

    ModuleClient& module() override {
        if (!module_) {
            module_.emplace();
        }
        return *module_;
    }
    std::u16string hostFolder() const override { return std::u16string(folder); }

    ObjectPtr application() override { return powerPoint_.application(); }
    std::int32_t mainWindow() override { return powerPoint_.window(); }
    void startPowerPoint() override { powerPoint_.start(); }
    void closePowerPoint() override { powerPoint_.close(); }
    void killPowerPoint() override { powerPoint_.kill(); }
    void killPowerPointAtCall(std::int32_t n) override { powerPoint_.standIn().call(u"DieAtCall", n); }
    void hidePowerPoint() override { powerPoint_.hide(); }
    void minimizePowerPoint() override { powerPoint_.minimize(); }
    void setBusy(bool busy) override { powerPoint_.standIn().put(u"Busy", busy); }
    void openDialog(std::u16string_view title) override {
        powerPoint_.standIn().call(u"OpenDialog", std::u16string(title));
    }
    std::size_t dialogs() override { return powerPoint_.dialogs(); }
    void uninstallPowerPoint() override {
        if (!simulator::standin::isRegistered()) {
            refuse(u"only the stand-in is uninstalled for a scenario");
        }
        registry_.setText(HKEY_LOCAL_MACHINE,
                          L"Software\\Classes\\" + std::wstring(simulator::standin::programmaticIds[0]) + L"\\CLSID",
                          L"", L"{00000000-0000-0000-0000-000000000000}");
    }

    ObjectPtr standIn() override { return powerPoint_.standIn().object(); }
    std::string runScript(const fs::path& script, const std::vector<std::u16string>& arguments) override {
        return host::runScript(script, arguments);
    }

    std::u16string registryText(std::u16string_view key, std::u16string_view name) override {
        return fromWide(registry_.text(wide(key), wide(name)));
    }
    void setRegistryText(std::u16string_view key, std::u16string_view name, std::u16string_view text) override {
        registry_.setText(HKEY_CURRENT_USER, wide(key), wide(name), wide(text));
    }
    void deleteRegistryValue(std::u16string_view key, std::u16string_view name) override {
        registry_.remove(HKEY_CURRENT_USER, wide(key), wide(name));
    }
    void denyRegistryKey(std::u16string_view key, bool denied) override { registry_.deny(wide(key), denied); }
    void setMeasurementSystem(std::u16string_view system) override {
        registry_.remember(HKEY_CURRENT_USER, international, measure);
        // The system always answers; what is no measurement system is as good as none.
        const std::wstring value = system.empty() ? L"?" : wide(system);
        if (SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, value.c_str()) == FALSE) {
            refuse(u"the measurement system cannot be set");
        }
    }

    std::vector<std::u16string> filesIn(std::u16string_view path) override {
        std::vector<std::u16string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(path))) {
            if (entry.is_regular_file()) {
                names.push_back(entry.path().filename().u16string());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    bool fileExists(std::u16string_view path) override { return fs::is_regular_file(fs::path(path)); }
    Bytes readFile(std::u16string_view path) override {
        std::ifstream file(existing(path), std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    void writeFile(std::u16string_view path, const Bytes& content) override {
        const fs::path real(path);
        files_.announce(real);
        fs::create_directories(real.parent_path());
        SetFileAttributesW(real.c_str(), FILE_ATTRIBUTE_NORMAL);
        std::ofstream file(real, std::ios::binary | std::ios::trunc);
        std::copy(content.begin(), content.end(), std::ostreambuf_iterator<char>(file));
    }
    void deleteFile(std::u16string_view path) override {
        const fs::path real = existing(path);
        files_.demandOwn(real);
        SetFileAttributesW(real.c_str(), FILE_ATTRIBUTE_NORMAL);
        fs::remove(real);
    }
    void setFileAttributes(std::u16string_view path, std::uint32_t attributes) override {
        const fs::path real = existing(path);
        files_.demandOwn(real);
        SetFileAttributesW(real.c_str(), attributes == attributes::normal ? FILE_ATTRIBUTE_NORMAL : attributes);
    }

    std::vector<std::string> leftOpen() override {
        module_.reset();
        return canLibraryUnload() ? std::vector<std::string>()
                                  : std::vector<std::string>{"the library cannot be unloaded"};
    }

private:
    [[nodiscard]] static fs::path existing(std::u16string_view path) {
        fs::path real(path);
        if (!fs::is_regular_file(real)) {
            automation::raise(RunTimeError::FileNotFound);
        }
        return real;
    }

    /// Settings of a user who has worked with PowerPoint a little.
    void setUpRegistry() {
        for (const std::u16string_view name : folderSettings::names) {
            setRegistryText(folderSettings::key, name, u"C:\\Mes documents\\" + std::u16string(name) + u"\\");
        }
        registry_.setText(HKEY_CURRENT_USER, general, L"Templates", templates);
        registry_.remove(HKEY_CURRENT_USER, general, L"UserTemplates");
        setMeasurementSystem(u"0");
        // The folder that InitQuestion makes there.
        const fs::path profile(registryText(shellFolders, u"AppData"));
        const fs::path own = profile / L"Microsoft" / templates / L"ZOR Mod\u00E8les";
        if (!fs::exists(own)) {
            files_.announce(own);
        }
    }

    std::shared_ptr<Desktop> desktop_;
    BorrowedFiles files_{desktop_->journal(), fs::path(folder).parent_path()};
    BorrowedRegistry registry_{desktop_->journal()};
    DesktopPowerPoint powerPoint_;
    std::optional<VtableModule> module_;
};

} // namespace

WorldMaker makeComWorlds(std::int32_t powerPointBits) {
    return [desktop = std::make_shared<Desktop>(powerPointBits)](const automation::ObserverPtr& observer) -> WorldPtr {
        if (observer) {
            refuse(u"the calls of the registered library cannot be listed");
        }
        desktop->makeReady();
        return std::make_unique<ComWorld>(desktop);
    };
}

} // namespace host
