#pragma once

#include "host/win32/Journal.h"
#include "host/world/PowerPoint.h"

namespace host {

/// PowerPoint on this desktop, by its main window, its process and the running-object table. Opening dialogs, being
/// busy, dying at a call and being uninstalled are asked of the stand-in alone.
class DesktopPowerPoint final : public PowerPoint {
public:
    /// `journal` must outlive this object.
    explicit DesktopPowerPoint(Journal& journal) noexcept : journal_(journal) {}

    [[nodiscard]] automation::ObjectPtr application() override;
    [[nodiscard]] std::int32_t window() override;
    /// Starts it, visible, or brings it to the front. Raises the system's error.
    void start() override;
    /// Returns when its process has ended.
    void close() override;
    void kill() override;
    void killAtCall(std::int32_t n) override;
    void hide() override;
    void minimize() override;
    void setBusy(bool busy) override;
    void openDialog(std::u16string_view title) override;
    [[nodiscard]] std::size_t dialogs() override;
    /// Until the journal gives everything back.
    void closeDialog() override;
    void answerSaving(std::u16string_view answer) override;
    void uninstall() override;
    /// Has it go without waiting for its process; kills it where it does not listen.
    void dismiss();

private:
    void forget() noexcept;

    Journal& journal_;
    automation::ObjectPtr application_; ///< of the window below
    HWND holder_ = nullptr;
};

} // namespace host
