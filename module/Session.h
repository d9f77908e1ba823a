#pragma once

#include "platform/Services.h"
#include "ppt/Application.h"

#include <optional>

namespace k73053 {

/// The PowerPoint in use: how it is obtained, tested, brought forward and put into the state that the exercises expect.
class Session {
public:
    explicit Session(const platform::Services& services) : services_(services) {}

    [[nodiscard]] const ppt::Application& application() const noexcept { return application_; }
    /// PowerPoint's main window; 0 when none.
    [[nodiscard]] platform::WindowHandle window() const noexcept { return window_; }

    /// Takes a PowerPoint that another holds as the one in use.
    void adopt(const automation::ObjectPtr& application, platform::WindowHandle window);

    /// Lets go of PowerPoint and its window.
    void forget() noexcept;

    /// Attaches to the running PowerPoint or starts one, and shows it. Where none can be started the application
    /// becomes nothing and the error goes to the error report.
    void GetApplication();

    /// True if PowerPoint's window is visible. Otherwise an invisible PowerPoint that still answers is quit.
    [[nodiscard]] bool PowerPointVisible();

    /// True if PowerPoint hangs: a call to it would not come back.
    [[nodiscard]] bool isHung() const;

    /// True if PowerPoint answers at once: its window state can be read and written. A busy one is not waited for.
    [[nodiscard]] bool PowerPointRepond() const;

    /// Maximises PowerPoint and brings its window to the foreground; false if there is no window.
    bool ActiveFenetre();

    /// Brings a window to the foreground and sends it ESC.
    void EnvoieEchap(platform::WindowHandle handle);

    /// Closes the first modal dialog that belongs to a window, and first those that belong to the dialog.
    void FermeDialogues(platform::WindowHandle handle);

    /// After a call that PowerPoint has refused as busy: closes a dialog that would make it refuse the next one, too,
    /// so that the host need only try again.
    void closeWhatRefuses(const automation::Error& error);

    /// Shows the command bars "standard", "formatting" and "Drawing" in their places and gives "Task Pane" the
    /// visibility kept. What a bar refuses is passed over.
    void InitCommandBar();

    /// Reads the settings to be kept from one question to the next: whether the start dialog and the "Task Pane" bar
    /// are shown. What cannot be read stays, all of it where
    /// PowerPoint hangs.
    void readKeptSettings();

    /// Reads whether the start dialog is shown; where it cannot be read, what was kept stays.
    void readStartupDialog();

    /// Gives the start dialog the setting kept, where there is one; a refusal is passed over.
    void restoreStartupDialog() const noexcept;

private:
    /// Attaches to the running PowerPoint and shows it; false where there is none, or one that is dead.
    bool attach();

    const platform::Services services_;
    ppt::Application application_;
    platform::WindowHandle window_ = 0;
    std::optional<bool> startupDialog_; ///< nothing as long as it could not be read
    bool taskPane_ = false;
};

} // namespace k73053
