#include "tests/trials/torture/Torture.h"

#include "automation/Text.h"

#include <numeric>

namespace trials::torture {

namespace {

using automation::Border;
using automation::toUtf8;
using Arrival = Operation::Arrival;

/// An operation with the calls that leave the module in it.
struct Rehearsal {
    Outcome outcome;
    std::vector<Call> route;
};

Rehearsal rehearse(std::int32_t question, const Run& run, Operation operation) {
    const auto recorder = std::make_shared<RouteRecorder>();
    ObservedCalls observed([&](World&) { return Strike{recorder, nullptr}; });
    Rehearsal rehearsal{run.run(operation, observed, true), {}};
    const std::vector<trace::Line> expected = trace::expectedTrace(question, operation);
    rehearsal.route = recorder->route(expected, rehearsal.outcome.calls);
    if (std::string difference = recorder->differenceOf(expected, rehearsal.outcome.calls); !difference.empty()) {
        rehearsal.outcome.findings.push_back(std::move(difference));
    }
    return rehearsal;
}

/// The folders can be written in spite of a fault that leaves the registry alone, or that strikes once.
bool leavesFoldersWritable(const Fault& fault) {
    return fault.lasting == Fault::Lasting::Once || !fault.fits(Border::Registry) || fault.isDeath();
}

} // namespace

Torture::Torture(const language::ScenarioFile& file, const WorldMaker& makeWorld, std::size_t every,
                 std::mt19937& random)
    : file_(file), course_(file, makeWorld), run_(file, course_, makeWorld), every_(every), random_(random) {}

void Torture::run(const Audience& audience) const {
    for (const Operation& operation : operations) {
        const Rehearsal rehearsal = rehearse(file_.question, run_, operation);
        std::vector<std::size_t> positions(rehearsal.route.size());
        std::iota(positions.begin(), positions.end(), std::size_t{0});
        const Struck struck = [&](const Fault& fault, std::size_t n) {
            ObservedCalls observed([&](World& world) { return fault.at(n, world); });
            return run_.run(operation, observed, leavesFoldersWritable(fault));
        };
        run({operation, rehearsal.outcome, rehearsal.route, positions}, Fault::all(), struck, audience);
    }
}

void Torture::runRemote(const WorldMaker& makeRemoteWorld, const Audience& audience) const {
    const Run remote(file_, course_, makeRemoteWorld);
    for (const Operation& operation : operations) {
        if (operation.arrival == Arrival::Started || operation.call == HostCall::Quitter || operation.isHeld) {
            continue;
        }
        const std::vector<Call> route = rehearse(file_.question, run_, operation).route;
        std::vector<std::size_t> positions;
        for (std::size_t i = 0; i < route.size(); ++i) {
            if (route[i].border == Border::Automation) {
                positions.push_back(i);
            }
        }
        RemoteCalls untroubled;
        Outcome flawless = remote.run(operation, untroubled, true);
        if (flawless.calls != positions.size()) {
            flawless.findings.push_back(std::to_string(flawless.calls) + " calls reach PowerPoint, and not " +
                                        std::to_string(positions.size()));
        }
        const Struck struck = [&](const Fault& fault, std::size_t n) {
            RemoteCalls troubled(fault, n);
            return remote.run(operation, troubled, leavesFoldersWritable(fault));
        };
        run({operation, flawless, route, positions}, Fault::remote(), struck, audience);
    }
}

void Torture::run(const Ground& ground, std::span<const Fault> faults, const Struck& struck,
                  const Audience& audience) const {
    const auto& [operation, flawless, route, positions] = ground;
    const std::string name = operation.display();
    for (const auto& findings : {flawless.findings, flawless.bars, flawless.presentations}) {
        audience.tell(name + ", nothing failed", findings);
    }
    const Checker checker(file_.question, operation, flawless, route);
    for (std::size_t n = 1 + random_() % every_; n <= positions.size(); n += every_) {
        const Call& call = route[positions[n - 1]];
        for (const Fault& fault : faults) {
            if (!fault.fits(call.border)) {
                continue;
            }
            audience.hasComeTo(name, n, positions.size());
            audience.judge(name + ", call " + std::to_string(n) + " " + toUtf8(call.text) + ", " + fault.display(),
                           checker.assess(struck(fault, n), positions[n - 1], fault));
        }
    }
}

} // namespace trials::torture
