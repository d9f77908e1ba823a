#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "host/language/Words.h"
#include "host/run/Conformance.h"

#include "automation/Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <ostream>

namespace host {

namespace {

using automation::toUtf8;
using language::Grounds;
using language::Scenario;
using language::ScenarioFile;
using nlohmann::ordered_json;

constexpr std::array namesOfKept{"agrees", "differs", "cannot tell"};
constexpr std::array namesOfGrounds{"documented", "assumed", "contested"};

/// How many expectations came out so.
struct Tally {
    std::array<std::size_t, namesOfKept.size()> counts{};

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

/// What became of a promise.
struct Answer {
    const Scenario& promise;
    std::vector<Finding> findings;

    [[nodiscard]] std::string grounds() const { return namesOfGrounds.at(static_cast<std::size_t>(promise.grounds)); }
    /// True where PowerPoint does otherwise than the module takes it to do.
    [[nodiscard]] bool matters() const {
        const Kept expected = promise.grounds == Grounds::Contested ? Kept::Differs : Kept::Agrees;
        return std::any_of(findings.begin(), findings.end(),
                           [expected](const Finding& finding) { return finding.kept != expected; });
    }
};

/// Asks PowerPoint for every promise of a file; each answer is told as it comes.
template <typename Tell> void ask(const ScenarioFile& file, const CommandContext& at, Watch& watch, const Tell& tell) {
    for (const Scenario& promise : file.scenarios) {
        watch.next(file.name + " \"" + toUtf8(promise.title) + "\"");
        tell(Answer{promise, findingsOf(file, promise, at.worlds.chosen())});
    }
}

/// Tells in lines what is not as the module takes it to be, and sums.
class InLines {
public:
    explicit InLines(std::ostream& out) : out_(out) {}

    void begin(const ScenarioFile& file) {
        name_ = file.name;
        ofClass_ = {};
    }
    void tell(const Answer& answer) {
        for (const Finding& finding : answer.findings) {
            ofClass_.add(finding.kept);
            byGrounds_.at(static_cast<std::size_t>(answer.promise.grounds)).add(finding.kept);
            tell(answer, finding);
        }
        if (answer.matters() && !answer.promise.decides.empty()) {
            out_ << "    this decides " << toUtf8(answer.promise.decides) << std::endl;
        }
    }
    void end(const ScenarioFile& file) { out_ << toUtf8(file.className) << ": " << ofClass_.display() << std::endl; }
    void conclude(bool isAsTaken) const {
        for (std::size_t place = 0; place < byGrounds_.size(); ++place) {
            out_ << namesOfGrounds.at(place) << ": " << byGrounds_.at(place).display() << '\n';
        }
        out_ << (isAsTaken ? "This PowerPoint is as the module takes it to be.\n"
                           : "This PowerPoint is not in everything as the module takes it to be.\n");
    }

private:
    void tell(const Answer& answer, const Finding& finding) const {
        const bool isContested = answer.promise.grounds == Grounds::Contested;
        if (finding.kept == Kept::CannotTell) {
            out_ << finding.remark.in(name_) << ": this cannot be told";
        } else if (finding.kept == Kept::Differs && !isContested) {
            out_ << finding.remark.in(name_);
        } else if (finding.kept == Kept::Agrees && isContested) {
            out_ << language::Remark{finding.remark.place, "this PowerPoint does as its documentation says, "
                                                           "not as the questions take it"}
                        .in(name_);
        } else {
            return;
        }
        out_ << " (" << answer.grounds() << ": \"" << toUtf8(answer.promise.title) << "\")" << std::endl;
    }

    std::ostream& out_;
    std::string name_;
    Tally ofClass_;
    std::array<Tally, namesOfGrounds.size()> byGrounds_;
};

/// Tells every promise and expectation as one object.
class InJson {
public:
    explicit InJson(std::ostream& out) : out_(out) {}

    void begin(const ScenarioFile& file) {
        classes_.push_back(
            {{"class", toUtf8(file.className)}, {"file", file.name}, {"promises", ordered_json::array()}});
    }
    void tell(const Answer& answer) {
        ordered_json expectations = ordered_json::array();
        for (const Finding& finding : answer.findings) {
            expectations.push_back({{"line", finding.remark.place.line},
                                    {"kept", namesOfKept.at(static_cast<std::size_t>(finding.kept))},
                                    {"remark", finding.remark.message}});
        }
        classes_.back()["promises"].push_back({{"title", toUtf8(answer.promise.title)},
                                               {"grounds", answer.grounds()},
                                               {"decides", toUtf8(answer.promise.decides)},
                                               {"asTaken", !answer.matters()},
                                               {"expectations", std::move(expectations)}});
    }
    void end(const ScenarioFile& /*file*/) {}
    void conclude(bool isAsTaken) const {
        const ordered_json all{{"asTaken", isAsTaken}, {"classes", classes_}};
        out_ << all.dump(2, ' ', false, ordered_json::error_handler_t::replace) << '\n';
    }

private:
    std::ostream& out_;
    ordered_json classes_ = ordered_json::array();
};

template <typename Form> ExitCode conform(const std::vector<std::string>& classes, const CommandContext& at) {
    Form form(at.out);
    Watch watch(at.out);
    bool isAsTaken = true;
    for (const ScenarioFile& file : promisesOf(classes, at.library)) {
        form.begin(file);
        ask(file, at, watch, [&](const Answer& answer) {
            form.tell(answer);
            isAsTaken = isAsTaken && !answer.matters();
        });
        form.end(file);
    }
    form.conclude(isAsTaken);
    return isAsTaken ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addConform(CLI::App& command) {
    const auto classes = std::make_shared<std::vector<std::string>>();
    command.add_option("classes", *classes, "PowerPoint's classes: Shape, TextRange ... (all)");
    const auto asJson = std::make_shared<bool>();
    command.add_flag("--json", *asJson, "Print one JSON object");
    return [classes, asJson](const CommandContext& at) {
        return *asJson ? conform<InJson>(*classes, at) : conform<InLines>(*classes, at);
    };
}

} // namespace host
