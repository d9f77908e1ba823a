#pragma once

#include "automation/Object.h"
#include "automation/Unmoved.h"
#include "platform/Services.h"

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace simulator {

class Process;

/// A computer of its own, in memory, with PowerPoint 2003 installed for one user: what the module needs of Windows, and
/// what happens to PowerPoint beside the object model. Its files are real files: `C:\Dossier\x.ppt` is the file
/// `C/Dossier/x.ppt` below the root.
class Machine : automation::Unmoved {
public:
    /// `root` is created where it is missing.
    explicit Machine(const std::filesystem::path& root);
    ~Machine();

    [[nodiscard]] const platform::Services& services() noexcept;

    /// Where a Windows path lies on the real disk.
    [[nodiscard]] std::filesystem::path realPath(std::u16string_view windowsPath) const;
    /// Sets attributes of a file (1 read-only, 2 hidden, 4 system); raises FileNotFound (53).
    void setAttributes(std::u16string_view path, std::uint32_t attributes);
    /// Creates an empty file, folders included.
    void createFile(std::u16string_view path);

    /// Starts PowerPoint as the user does, visible and without a presentation; shows it where it runs already. Raises
    /// CannotCreateObject (429) where it is not installed.
    void startPowerPoint();
    [[nodiscard]] bool isPowerPointRunning() const noexcept;
    /// PowerPoint's application object; null where it does not run.
    [[nodiscard]] automation::ObjectPtr application();
    /// The run of PowerPoint in progress, with its documents and windows; null where there is none.
    [[nodiscard]] std::shared_ptr<Process> process() const noexcept;
    /// Handle of PowerPoint's main window; 0 where it does not run.
    [[nodiscard]] platform::WindowHandle mainWindow() const noexcept;
    /// The user closes PowerPoint, or its process dies: objects held on it are dead from then on.
    void endPowerPoint();
    /// Its process dies at the n-th call from now, which raises that it has failed.
    void endPowerPointAtCall(std::int32_t n);
    /// PowerPoint refuses automation calls from now on, or answers again.
    void setBusy(bool busy);
    /// These do nothing where PowerPoint does not run.
    void hidePowerPoint();
    void minimizePowerPoint();
    /// Opens a modal dialog above PowerPoint's main window, or above the dialog opened last.
    void openDialog(std::u16string_view title);
    [[nodiscard]] std::size_t dialogs() const;
    /// The user closes the dialog opened last.
    void closeDialog();
    /// Says how the user answers where PowerPoint asks what is to be saved: "save", "discard" or "cancel". Raises
    /// InvalidProcedureCall (5) for anything else.
    void answerSaving(std::u16string_view answer);
    /// From now on PowerPoint behaves as its documentation says, also where the questions take it otherwise.
    void followDocumentation();
    /// The presentations whose changes were dropped since nobody had said how the user answers.
    [[nodiscard]] const std::vector<std::u16string>& droppedUnasked() const noexcept;
    /// Makes starting PowerPoint fail from now on, as where it is not installed.
    void uninstallPowerPoint();

    /// The window that gets the keys; 0 where none is visible.
    [[nodiscard]] platform::WindowHandle foregroundWindow() const;
    /// Opens a window of another program in front of all others.
    platform::WindowHandle openWindow(std::u16string_view className, std::u16string_view title);

    /// A string value of the current user's registry; empty where it is missing.
    [[nodiscard]] std::u16string registryText(std::u16string_view key, std::u16string_view name) const;
    void setRegistryText(std::u16string_view key, std::u16string_view name, std::u16string_view text);
    void deleteRegistryValue(std::u16string_view key, std::u16string_view name);
    /// Makes a key impossible to open, or possible again.
    void denyRegistryKey(std::u16string_view key, bool denied = true);
    /// Number of registry keys opened and not closed yet.
    [[nodiscard]] std::size_t openRegistryKeys() const noexcept;

    /// The measurement system of the user's settings: "0" metric, "1" U.S.; empty makes the query fail.
    void setMeasurementSystem(std::string_view text);
    /// Keys sent to the active window so far, as they were written.
    [[nodiscard]] const std::u16string& keysSent() const noexcept;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace simulator
