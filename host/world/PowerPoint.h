#pragma once

#include "automation/Object.h"
#include "automation/Unmoved.h"

namespace host {

/// PowerPoint as its user sees it. What a world cannot do raises automation::Error.
class PowerPoint : automation::Unmoved {
public:
    virtual ~PowerPoint() = default;

    /// Its application object; null where it does not run.
    [[nodiscard]] virtual automation::ObjectPtr application() = 0;
    /// Handle of its main window; 0 where it does not run.
    [[nodiscard]] virtual std::int32_t window() = 0;
    /// Starts it where it does not run.
    virtual void start() = 0;
    /// Its user closes it.
    virtual void close() = 0;
    /// Its process dies.
    virtual void kill() = 0;
    /// Its process dies at the n-th call from now, 1 being the next one.
    virtual void killAtCall(std::int32_t n) = 0;
    virtual void hide() = 0;
    virtual void minimize() = 0;
    /// It refuses calls from now on, or answers again.
    virtual void setBusy(bool busy) = 0;
    /// Opens a modal dialog above its main window, or above the dialog opened last.
    virtual void openDialog(std::u16string_view title) = 0;
    [[nodiscard]] virtual std::size_t dialogs() = 0;
    /// Its user closes the dialog opened last.
    virtual void closeDialog() = 0;
    /// How its user answers where it asks what is to be saved: "save", "discard" or "cancel".
    virtual void answerSaving(std::u16string_view answer) = 0;
    virtual void uninstall() = 0;
};

} // namespace host
