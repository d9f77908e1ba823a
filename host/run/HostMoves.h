#pragma once

#include "automation/MemberTable.h"
#include "host/run/TrainingHost.h"

namespace host {

/// `Host`: what the training host does beside checking.
///
/// - `Host.InitQuestion` begins the file's question once more, with the course's files delivered anew
/// - `Host.InitQuestion 307` begins another question
/// - `Host.InitQuestion 306, "C:\Ailleurs\"` begins one in another folder
/// - `Host.TestePoint` is a check whose verdict nobody reads
/// - `Host.Fermer`, `Host.Quitter` end the question and the session
/// - `Host.Deliver` puts the course's files into the host's folder without beginning a question
/// - `Set Host.Application = Application` has the host bring a PowerPoint of its own
/// - `Host.Window = PowerPoint.Window` gives the handle of that PowerPoint's window, -1 unknown
/// - `Host.ForgetPowerPoint` leaves the host without a PowerPoint
/// - `Host.Kill` ends the host's process; another begins, which knows nothing
/// - `expect Host.CauseErreur = ""` reads the module's answer, as do `Host.ErreurGenerale` and `Host.BravoNuance`
/// - `expect Host.Folder = "C:\Formation\"` reads the host's folder
class HostMoves final : public automation::Published {
public:
    /// `host` must outlive this object.
    explicit HostMoves(TrainingHost& host) noexcept : host_(host) {}

    void initQuestion(std::optional<std::int32_t> question, const std::optional<std::u16string>& folder);
    void testePoint() { host_.testePoint(); }
    void fermer() { host_.fermer(); }
    void quitter() { host_.quitter(); }
    void deliver(std::optional<std::int32_t> question) { host_.deliver(question.value_or(host_.question())); }
    [[nodiscard]] automation::ObjectPtr application() const { return host_.application; }
    void setApplication(automation::ObjectPtr application) { host_.application = std::move(application); }
    [[nodiscard]] std::int32_t window() const { return host_.window; }
    void setWindow(std::int32_t window) { host_.window = window; }
    void forgetPowerPoint();
    void kill();
    [[nodiscard]] bool erreurGenerale() { return host_.world().module().erreurGenerale(); }
    [[nodiscard]] std::u16string causeErreur() { return host_.world().module().causeErreur(); }
    [[nodiscard]] bool bravoNuance() { return host_.world().module().bravoNuance(); }
    [[nodiscard]] std::u16string folder() { return host_.world().hostFolder(); }

    [[nodiscard]] std::u16string className() const override { return u"Host"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    TrainingHost& host_;
};

} // namespace host
