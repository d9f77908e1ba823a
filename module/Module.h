#pragma once

#include "automation/MemberTable.h"
#include "module/Session.h"
#include "module/Staging.h"
#include "module/UserSettings.h"

namespace k73053 {

/// The one object that the host creates: it turns the host's calls into work on one PowerPoint session and one question
/// at a time. Its members are the host's interface `AbstractModule`. Of its operations `InitQuestion`, `TestePoint`,
/// `Fermer` and `Quitter` one runs at a time in the process; another meanwhile is refused as busy (8001010A).
class Module final : public automation::Published {
public:
    /// The variables shared by all questions, and the system's services; both must outlive this object.
    Module(exercises::API& api, const platform::Services& services);
    /// What no close could restore is tried once more, unless an operation of another `Module` runs.
    ~Module() override;

    /// Stages and prepares a question of the course in the host's folder, which ends with a backslash. The host's
    /// PowerPoint and window handle (-1 unknown) are replaced by those in use. The last argument is not used.
    void InitQuestion(std::int32_t questionNumber, const std::u16string& folder,
                      automation::ObjectVariable& application, std::int32_t& window, const std::u16string& unused);
    /// Checks the learner's work; the verdict is read through the next four.
    void TestePoint();
    /// True when the last check did not reach the question's own.
    [[nodiscard]] bool ErreurGenerale() const noexcept { return generalError_; }
    /// Outcome code of the last check.
    [[nodiscard]] std::u16string CauseErreur() const;
    /// True when the question was passed with a remark.
    [[nodiscard]] bool BravoNuance() const;
    /// Complementary texts of the last check.
    [[nodiscard]] automation::ObjectPtr Complement() const;
    /// Closes the question and restores the learner's settings; without a question, what an earlier close could not
    /// restore. Raises ObjectNotSet (91) where there is neither.
    void Fermer();
    /// Closes a question still held, and PowerPoint where the module started it and it does not hang.
    void Quitter(automation::ObjectVariable& application, std::int32_t& window);

    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    /// Lets go of a host's PowerPoint whose window no longer exists.
    void forgetClosedPowerPoint(automation::ObjectVariable& application, std::int32_t& window);
    /// Makes sure that a visible PowerPoint answers: the host's, or one attached to or started.
    void obtainPowerPoint(automation::ObjectVariable& application, std::int32_t& window);
    void startPowerPoint(automation::ObjectVariable& application, std::int32_t& window);
    /// The question may put another PowerPoint in the place of the one in use.
    void prepareQuestion(const std::u16string& folder);
    void FermeQuestion();
    void leavePowerPointAsFound();
    /// Puts back what an exercise has changed and no close could restore: the bars where PowerPoint answers, and the
    /// folders.
    void restoreLeftovers();
    /// Runs the general checks and, where they pass, the question's; the code of the one that fails, or nothing.
    [[nodiscard]] std::u16string check();

    exercises::API& api_;
    platform::Services services_;
    Session session_;
    UserSettings settings_;
    Staging staging_;
    automation::LateBound question_;
    std::u16string causeText_;
    bool generalError_ = false;
    std::int32_t questionNumber_ = 0;
    bool started_ = false; ///< the module itself obtained or started PowerPoint
};

} // namespace k73053
