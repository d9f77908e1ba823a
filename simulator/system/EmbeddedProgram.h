#pragma once

#include "automation/Object.h"
#include "automation/Unmoved.h"
#include "simulator/process/Process.h"
#include "simulator/system/EmbeddedMainWindow.h"

namespace simulator {

/// PowerPoint as a program of the computer: installed or not, running at most once.
class EmbeddedProgram : automation::Unmoved {
public:
    /// All must outlive this object.
    EmbeddedProgram(EmbeddedWindows& windows, PresentationStore& store, Settings& settings) noexcept
        : windows_(windows), store_(store), settings_(settings) {}
    ~EmbeddedProgram() { end(); }

    /// Starts PowerPoint, invisible; nothing happens where it runs already. Raises CannotCreateObject (429) where it is
    /// not installed.
    void start();
    void end();
    [[nodiscard]] bool isRunning() const noexcept;
    void uninstall() noexcept { installed_ = false; }

    /// The run in progress; null where there is none.
    [[nodiscard]] ProcessPtr process() const noexcept { return isRunning() ? process_ : nullptr; }
    /// The application object of the run in progress; null where there is none.
    [[nodiscard]] automation::ObjectPtr application() const;

private:
    EmbeddedWindows& windows_;
    PresentationStore& store_;
    Settings& settings_;
    bool installed_ = true;
    std::unique_ptr<EmbeddedMainWindow> window_; ///< of the last run, ended or not
    ProcessPtr process_;
};

} // namespace simulator
