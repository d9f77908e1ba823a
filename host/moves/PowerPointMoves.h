#pragma once

#include "automation/MemberTable.h"
#include "host/world/World.h"

namespace host {

/// `PowerPoint`: the program as its user sees it, beside the object model.
///
///     PowerPoint.Start                   the learner starts it; nothing where it runs
///     PowerPoint.Close                   the learner closes it
///     PowerPoint.Kill                    its process dies
///     PowerPoint.KillAtCall 8            it dies at the eighth call from now
///     PowerPoint.Hide                    its window becomes invisible
///     PowerPoint.Minimize
///     PowerPoint.StopAnswering           it refuses calls from now on
///     PowerPoint.AnswerAgain
///     PowerPoint.OpenDialog "Police"     a dialog opens above its window, or above the dialog opened last
///     PowerPoint.Uninstall               it cannot be started any more
///     expect PowerPoint.IsRunning = True
///     expect PowerPoint.Dialogs = 0      number of dialogs open
///     expect PowerPoint.Window = 0       handle of its main window, 0 where it does not run
class PowerPointMoves final : public automation::Published {
public:
    /// `world` must outlive this object.
    explicit PowerPointMoves(World& world) noexcept : world_(world) {}

    void start() { world_.startPowerPoint(); }
    void close() { world_.closePowerPoint(); }
    void kill() { world_.killPowerPoint(); }
    void killAtCall(std::int32_t n) { world_.killPowerPointAtCall(n); }
    void hide() { world_.hidePowerPoint(); }
    void minimize() { world_.minimizePowerPoint(); }
    void stopAnswering() { world_.setBusy(true); }
    void answerAgain() { world_.setBusy(false); }
    void openDialog(const std::u16string& title) { world_.openDialog(title); }
    void uninstall() { world_.uninstallPowerPoint(); }
    [[nodiscard]] bool isRunning() { return world_.application() != nullptr; }
    [[nodiscard]] std::int32_t dialogs() { return static_cast<std::int32_t>(world_.dialogs()); }
    [[nodiscard]] std::int32_t window() { return world_.mainWindow(); }

    [[nodiscard]] std::u16string className() const override { return u"PowerPoint"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    World& world_;
};

} // namespace host
