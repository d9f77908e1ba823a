#pragma once

#include "automation/LateBound.h"

#include <windows.h>

#include <string_view>

namespace host {

/// PowerPoint on this desktop, by its main window, its process and the running-object table.
class DesktopPowerPoint {
public:
    /// Its application object; null where it does not run.
    [[nodiscard]] automation::ObjectPtr application();
    [[nodiscard]] std::int32_t window() const;
    /// Starts it, visible, or brings it to the front. Raises the system's error.
    void start();
    /// Its user closes it; returns when its process has ended.
    void close();
    /// Ends its process, whatever it does.
    void kill();
    /// Has it go without waiting for its process; kills it where it does not listen.
    void dismiss();
    void hide() const;
    void minimize() const;
    [[nodiscard]] std::size_t dialogs() const;

    /// The controls of the stand-in. Raises CannotCreateObject (429) where another PowerPoint runs, or none.
    [[nodiscard]] const automation::LateBound& standIn();
    /// True where the PowerPoint that runs is the stand-in.
    [[nodiscard]] static bool isStandIn();
    /// Drops the references held.
    void forget() noexcept;

private:
    automation::ObjectPtr application_; ///< of the window below
    automation::LateBound standIn_;     ///< of the window below
    HWND holder_ = nullptr;
};

} // namespace host
