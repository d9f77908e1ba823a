#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "host/language/Words.h"
#include "host/run/Conformance.h"

#include "automation/Text.h"

#include <array>
#include <ostream>

namespace host {

namespace {

using automation::toUtf8;
using language::Grounds;
using language::Scenario;
using language::ScenarioFile;

constexpr std::array kinds{Kept::Agrees, Kept::Differs, Kept::CannotTell};
constexpr std::array<const char*, 3> namesOfGrounds{"documented", "assumed", "contested"};

/// How many expectations came out so.
struct Tally {
    std::array<std::size_t, kinds.size()> counts{};

    void add(Kept kept) { ++counts.at(static_cast<std::size_t>(kept)); }
    [[nodiscard]] std::string display() const {
        return std::to_string(counts[0]) + " agree, " + std::to_string(counts[1]) + " differ, " +
               std::to_string(counts[2]) + " cannot be told";
    }
};

std::vector<ScenarioFile> promisesOf(const std::vector<std::string>& classes, const Library& library) {
    std::vector<ScenarioFile> all;
    for (const std::filesystem::path& path : library.files()) {
        ScenarioFile file = load(path);
        const auto isIt = [&](const std::string& name) {
            return automation::equalIgnoringCase(automation::fromUtf8(name), file.className);
        };
        if (!file.className.empty() && (classes.empty() || std::any_of(classes.begin(), classes.end(), isIt))) {
            all.push_back(std::move(file));
        }
    }
    if (all.size() < std::max<std::size_t>(classes.size(), 1)) {
        throw UsageError(classes.empty() ? "no promises in " + library.folder().string()
                                         : "no promises of such a class: 'exercise-host list' names all classes");
    }
    return all;
}

/// Asks PowerPoint for every promise, and tells what is not as the module takes it to be.
class Inspection {
public:
    explicit Inspection(const CommandContext& at) : at_(at), watch_(at.out) {}

    void inspect(const ScenarioFile& file) {
        Tally tally;
        for (const Scenario& promise : file.scenarios) {
            watch_.next(file.name + " \"" + toUtf8(promise.title) + "\"");
            bool matters = false;
            for (const Finding& finding : findingsOf(file, promise, at_.worlds.chosen())) {
                tally.add(finding.kept);
                byGrounds_.at(static_cast<std::size_t>(promise.grounds)).add(finding.kept);
                tell(file, promise, finding);
                const Kept expected = promise.grounds == Grounds::Contested ? Kept::Differs : Kept::Agrees;
                matters = matters || finding.kept != expected;
            }
            if (matters && !promise.decides.empty()) {
                at_.out << "    this decides " << toUtf8(promise.decides) << std::endl;
            }
            isAsTaken_ = isAsTaken_ && !matters;
        }
        at_.out << toUtf8(file.className) << ": " << tally.display() << std::endl;
    }

    [[nodiscard]] ExitCode conclude() const {
        for (const Grounds grounds : {Grounds::Documented, Grounds::Assumed, Grounds::Contested}) {
            const auto place = static_cast<std::size_t>(grounds);
            at_.out << namesOfGrounds.at(place) << ": " << byGrounds_.at(place).display() << '\n';
        }
        at_.out << (isAsTaken_ ? "This PowerPoint is as the module takes it to be.\n"
                               : "This PowerPoint is not in everything as the module takes it to be.\n");
        return isAsTaken_ ? ExitCode::Good : ExitCode::FellShort;
    }

private:
    void tell(const ScenarioFile& file, const Scenario& promise, const Finding& finding) const {
        const bool isContested = promise.grounds == Grounds::Contested;
        if (finding.kept == Kept::CannotTell) {
            at_.out << finding.remark.in(file.name) << ": this cannot be told";
        } else if (finding.kept == Kept::Differs && !isContested) {
            at_.out << finding.remark.in(file.name);
        } else if (finding.kept == Kept::Agrees && isContested) {
            at_.out << language::Remark{finding.remark.place, "this PowerPoint does as its documentation says, "
                                                              "not as the questions take it"}
                           .in(file.name);
        } else {
            return;
        }
        at_.out << " (" << namesOfGrounds.at(static_cast<std::size_t>(promise.grounds)) << ": \""
                << toUtf8(promise.title) << "\")" << std::endl;
    }

    const CommandContext& at_;
    Watch watch_;
    std::array<Tally, namesOfGrounds.size()> byGrounds_;
    bool isAsTaken_ = true;
};

ExitCode conform(const std::vector<std::string>& classes, const CommandContext& at) {
    Inspection inspection(at);
    for (const ScenarioFile& file : promisesOf(classes, at.library)) {
        inspection.inspect(file);
    }
    return inspection.conclude();
}

} // namespace

Action addConform(CLI::App& command) {
    const auto classes = std::make_shared<std::vector<std::string>>();
    command.add_option("classes", *classes, "PowerPoint's classes: Shape, TextRange ... (all)");
    return [classes](const CommandContext& at) { return conform(*classes, at); };
}

} // namespace host
