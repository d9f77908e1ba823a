#pragma once

#include "automation/Unmoved.h"
#include "automation/observe/Observer.h"
#include "host/world/ModuleClient.h"

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

namespace host {

/// Content of a file, byte by byte.
using Bytes = std::vector<unsigned char>;

/// A computer with PowerPoint, the module and a learner, wherever the three live. A world is made for one scenario and
/// dropped after it; dropping it releases the module first.
///
/// Paths are full Windows paths; registry keys are named by their path below HKEY_CURRENT_USER. Operations that a world
/// cannot do raise automation::Error.
class World : automation::Unmoved {
public:
    virtual ~World() = default;

    /// The module, created at the first use.
    [[nodiscard]] virtual ModuleClient& module() = 0;
    /// The folder in which the host works, with its trailing backslash; it exists.
    [[nodiscard]] virtual std::u16string hostFolder() const = 0;

    // PowerPoint as its user sees it.

    /// PowerPoint's application object; null where it does not run.
    [[nodiscard]] virtual automation::ObjectPtr application() = 0;
    /// Handle of PowerPoint's main window; 0 where it does not run.
    [[nodiscard]] virtual std::int32_t mainWindow() = 0;
    /// Starts PowerPoint where it does not run.
    virtual void startPowerPoint() = 0;
    /// The user closes PowerPoint.
    virtual void closePowerPoint() = 0;
    /// PowerPoint's process dies.
    virtual void killPowerPoint() = 0;
    /// PowerPoint's process dies at the n-th call from now, 1 being the next one.
    virtual void killPowerPointAtCall(std::int32_t n) = 0;
    virtual void hidePowerPoint() = 0;
    virtual void minimizePowerPoint() = 0;
    /// PowerPoint refuses calls from now on, or answers again.
    virtual void setBusy(bool busy) = 0;
    /// Opens a modal dialog above PowerPoint's main window, or above the dialog opened last.
    virtual void openDialog(std::u16string_view title) = 0;
    [[nodiscard]] virtual std::size_t dialogs() = 0;
    virtual void uninstallPowerPoint() = 0;
    /// What a stand-in of PowerPoint in a process of its own counts, and can be made to do, late-bound.
    [[nodiscard]] virtual automation::ObjectPtr standIn() = 0;
    /// Runs a script in the system's script host, with arguments, and returns what it prints.
    [[nodiscard]] virtual std::string runScript(const std::filesystem::path& script,
                                                const std::vector<std::u16string>& arguments) = 0;

    // The registry of the current user.

    /// A string value; empty where it is missing.
    [[nodiscard]] virtual std::u16string registryText(std::u16string_view key, std::u16string_view name) = 0;
    virtual void setRegistryText(std::u16string_view key, std::u16string_view name, std::u16string_view text) = 0;
    virtual void deleteRegistryValue(std::u16string_view key, std::u16string_view name) = 0;
    /// Makes a key impossible to open, or possible again.
    virtual void denyRegistryKey(std::u16string_view key, bool denied) = 0;
    /// The measurement system of the user's settings: "0" metric, "1" U.S.; empty where it cannot be read.
    virtual void setMeasurementSystem(std::u16string_view system) = 0;

    // Files.

    /// Names of the files of a folder, sorted.
    [[nodiscard]] virtual std::vector<std::u16string> filesIn(std::u16string_view folder) = 0;
    [[nodiscard]] virtual bool fileExists(std::u16string_view path) = 0;
    [[nodiscard]] virtual Bytes readFile(std::u16string_view path) = 0;
    /// Creates or replaces a file, folders included.
    virtual void writeFile(std::u16string_view path, const Bytes& content) = 0;
    virtual void deleteFile(std::u16string_view path) = 0;
    /// Sets the attributes of a file (1 read-only, 2 hidden, 4 system).
    virtual void setFileAttributes(std::u16string_view path, std::uint32_t attributes) = 0;

    /// What the module has opened and not closed again, in plain words; empty where all is well.
    [[nodiscard]] virtual std::vector<std::string> leftOpen() = 0;
};

using WorldPtr = std::unique_ptr<World>;

/// Makes a fresh world. Calls that leave the module pass through the observer, where one is given and the world can.
using WorldMaker = std::function<WorldPtr(const automation::ObserverPtr&)>;

/// Attributes of files, as World::setFileAttributes takes them.
namespace attributes {
inline constexpr std::uint32_t normal = 0;
inline constexpr std::uint32_t readOnly = 1;
inline constexpr std::uint32_t hidden = 2;
} // namespace attributes

/// PowerPoint's four folder settings, in their registry key.
namespace folderSettings {
inline constexpr std::u16string_view key = u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";
inline constexpr std::array<std::u16string_view, 4> names{u"Default", u"MultimediaDir", u"PictureDir", u"TemplateDir"};
} // namespace folderSettings

} // namespace host
