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

/// An operation with the calls that leave the module in it.
struct Rehearsal {
    Aftermath aftermath;
    std::vector<Call> calls;
};

Rehearsal rehearse(const Ordeal& ordeal, Operation operation) {
    auto recorder = std::make_shared<Recorder>();
    ObservedCalls observed([&](World&) { return recorder; });
    Rehearsal rehearsal{ordeal.run(operation, observed, true), {}};
    recorder->calls.resize(rehearsal.aftermath.calls);
    rehearsal.calls = std::move(recorder->calls);
    return rehearsal;
}

/// The folders can be written in spite of a fault that leaves the registry alone, or that strikes once.
bool leavesFoldersWritable(const Fault& fault) {
    return fault.lasting == Fault::Lasting::Once || !fault.fits(Border::Registry) || fault.isDeath();
}

} // namespace

Torture::Torture(const language::ScenarioFile& file, const WorldMaker& makeWorld, std::size_t every,
                 std::mt19937& random)
    : file_(file), course_(file, makeWorld), ordeal_(file, course_, makeWorld), every_(every), random_(random) {}

void Torture::run(Totals& totals, const Report& report, const Progress& progress) const {
    for (const Operation& operation : operations) {
        const Rehearsal rehearsal = rehearse(ordeal_, operation);
        const Struck struck = [&](const Fault& fault, std::size_t n) {
            ObservedCalls observed([&](World& world) { return fault.at(n, world); });
            return ordeal_.run(operation, observed, leavesFoldersWritable(fault));
        };
        run(operation, rehearsal.aftermath, rehearsal.calls, Fault::all(), struck, {totals, report, progress});
    }
}

void Torture::runRemote(const WorldMaker& makeRemoteWorld, Totals& totals, const Report& report,
                        const Progress& progress) const {
    const Ordeal remote(file_, course_, makeRemoteWorld);
    for (const Operation& operation : operations) {
        if (operation.arrival == Arrival::Started || operation.call == HostCall::Quitter) {
            continue;
        }
        std::vector<Call> calls = rehearse(ordeal_, operation).calls;
        std::erase_if(calls, [](const Call& call) { return call.border != Border::Automation; });
        RemoteCalls untroubled;
        Aftermath flawless = remote.run(operation, untroubled, true);
        if (flawless.calls != calls.size()) {
            flawless.findings.push_back(std::to_string(flawless.calls) + " calls reach PowerPoint, and not " +
                                        std::to_string(calls.size()));
        }
        const Struck struck = [&](const Fault& fault, std::size_t n) {
            RemoteCalls troubled(fault, n);
            return remote.run(operation, troubled, leavesFoldersWritable(fault));
        };
        run(operation, flawless, calls, Fault::remote(), struck, {totals, report, progress});
    }
}

void Torture::run(Operation operation, const Aftermath& flawless, std::span<const Call> calls,
                  std::span<const Fault> faults, const Struck& struck, const Audience& audience) const {
    const auto& [totals, report, progress] = audience;
    const std::string place = "question " + std::to_string(file_.question) + ", " + operation.display();
    for (const auto& findings : {flawless.findings, flawless.bars}) {
        for (const std::string& finding : findings) {
            ++totals.findings;
            report(place + ", nothing failed: " + finding);
        }
    }
    const Judge judge(file_.question, operation, flawless);
    for (std::size_t n = firstPosition(); n <= calls.size(); n += every_) {
        const Call& call = calls[n - 1];
        for (const Fault& fault : faults) {
            if (!fault.fits(call.border)) {
                continue;
            }
            progress(operation, n, calls.size());
            const Aftermath aftermath = struck(fault, n);
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
