#include "host/torture/Torture.h"

#include "automation/Text.h"

namespace host::torture {

namespace {

using automation::Border;
using automation::toUtf8;
using Arrival = Operation::Arrival;

constexpr std::array operations{
    Operation{HostCall::InitQuestion, Arrival::Brought}, Operation{HostCall::InitQuestion, Arrival::Started},
    Operation{HostCall::TestePoint, Arrival::Brought},   Operation{HostCall::Fermer, Arrival::Brought},
    Operation{HostCall::Quitter, Arrival::Brought},      Operation{HostCall::Quitter, Arrival::Started},
};

/// Writes the calls down as they pass.
class Recorder final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override {
        const bool opens = crossing.member == u"Open" && crossing.border == Border::Automation;
        // Prepare begins where the presentation is opened, and is over where the folders are pointed at the exercise.
        isInPrepare_ = opens || (isInPrepare_ && crossing.border != Border::Registry);
        calls.push_back({crossing.border, crossing.display(), isInPrepare_, isInLayout_});
        // How the bars stand is read once the files are staged, the tooltips last.
        const bool isRename = crossing.border == Border::File && crossing.member == u"rename";
        const bool isTooltips = crossing.member == u"DisplayTooltips" && crossing.access == automation::Access::Get;
        isInLayout_ = (isRename || isInLayout_) && !isTooltips;
        return next();
    }

    std::vector<Call> calls;

private:
    bool isInPrepare_ = false;
    bool isInLayout_ = false;
};

/// The folders can be written in spite of a fault that leaves the registry alone, or that strikes once.
bool leavesFoldersWritable(const Fault& fault) {
    return fault.lasting == Fault::Lasting::Once || !fault.fits(Border::Registry) || fault.kind == Fault::Kind::Killed;
}

} // namespace

Torture::Torture(const language::ScenarioFile& file, const WorldMaker& makeWorld, std::size_t every,
                 std::mt19937& random)
    : file_(file), course_(file, makeWorld), ordeal_(file, course_, makeWorld), every_(every), random_(random) {}

void Torture::run(Totals& totals, const Report& report, const Progress& progress) const {
    for (const Operation& operation : operations) {
        run(operation, totals, report, progress);
    }
}

void Torture::run(Operation operation, Totals& totals, const Report& report, const Progress& progress) const {
    auto recorder = std::make_shared<Recorder>();
    const Aftermath flawless = ordeal_.run(
        operation, [&](World&) { return recorder; }, true);
    const std::string place = "question " + std::to_string(file_.question) + ", " + operation.display();
    for (const auto& findings : {flawless.findings, flawless.bars}) {
        for (const std::string& finding : findings) {
            ++totals.findings;
            report(place + ", nothing failed: " + finding);
        }
    }
    const std::span<const Call> calls(recorder->calls.data(), flawless.calls);
    const Judge judge(file_.question, operation, flawless);
    for (std::size_t n = firstPosition(); n <= calls.size(); n += every_) {
        progress(operation, n, calls.size());
        const Call& call = calls[n - 1];
        for (const Fault& fault : Fault::all()) {
            if (!fault.fits(call.border)) {
                continue;
            }
            const Aftermath aftermath = ordeal_.run(
                operation, [&](World& world) { return fault.at(n, world); }, leavesFoldersWritable(fault));
            ++totals.failed;
            ++totals.outcomes.at(static_cast<std::size_t>(judge.answerOf(aftermath, fault)));
            for (const std::string& finding : judge.findings(aftermath, call, fault)) {
                ++totals.findings;
                report(place + ", call " + std::to_string(n) + " " + toUtf8(call.text) + ", " + fault.display() + ": " +
                       finding);
            }
        }
    }
}

std::size_t Torture::firstPosition() const {
    return 1 + random_() % every_;
}

} // namespace host::torture
