#pragma once

#include "automation/MemberTable.h"
#include "host/world/PowerPoint.h"

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
///     PowerPoint.CloseDialog             its user closes the dialog opened last
///     PowerPoint.AnswerSaving "save"     how its user answers where it asks what is to be saved: "discard", "cancel"
///     PowerPoint.Uninstall               it cannot be started any more
///     expect PowerPoint.IsRunning = True
///     expect PowerPoint.Dialogs = 0      number of dialogs open
///     expect PowerPoint.Window = 0       handle of its main window, 0 where it does not run
class PowerPointMoves final : public automation::Published {
public:
    /// `powerPoint` must outlive this object.
    explicit PowerPointMoves(PowerPoint& powerPoint) noexcept : powerPoint_(powerPoint) {}

    void start() { powerPoint_.start(); }
    void close() { powerPoint_.close(); }
    void kill() { powerPoint_.kill(); }
    void killAtCall(std::int32_t n) { powerPoint_.killAtCall(n); }
    void hide() { powerPoint_.hide(); }
    void minimize() { powerPoint_.minimize(); }
    void stopAnswering() { powerPoint_.setBusy(true); }
    void answerAgain() { powerPoint_.setBusy(false); }
    void openDialog(const std::u16string& title) { powerPoint_.openDialog(title); }
    void closeDialog() { powerPoint_.closeDialog(); }
    void answerSaving(const std::u16string& answer) { powerPoint_.answerSaving(answer); }
    void uninstall() { powerPoint_.uninstall(); }
    [[nodiscard]] bool isRunning() { return powerPoint_.application() != nullptr; }
    [[nodiscard]] std::int32_t dialogs() { return static_cast<std::int32_t>(powerPoint_.dialogs()); }
    [[nodiscard]] std::int32_t window() { return powerPoint_.window(); }

    [[nodiscard]] std::u16string className() const override { return u"PowerPoint"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    PowerPoint& powerPoint_;
};

} // namespace host
