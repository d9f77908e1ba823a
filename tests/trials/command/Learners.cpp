#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "host/run/Course.h"
#include "tests/trials/command/Commands.h"
#include "tests/trials/command/ProcessorTime.h"
#include "tests/trials/learners/Learner.h"
#include "tests/trials/learners/Shrink.h"

#include "automation/Text.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <ostream>
#include <set>

namespace trials {

namespace {

using learners::Finding;
using learners::Moves;
using learners::Record;

struct LearnersRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t runs = 250;              ///< learners of a question
    std::optional<std::uint32_t> draw;   ///< of the random numbers that guide them; a new one where it is missing
    std::string folder = ".";            ///< where the scenario of a disagreement is saved
};

std::string outcomeOf(const Reading& reading) {
    if (reading.error) {
        return reading.error->number() == 0 ? "error 0" : "refused";
    }
    const std::string letter = automation::toUtf8(reading.causeErreur);
    return reading.erreurGenerale ? "general " + letter : letter.empty() ? "success" : letter;
}

std::string outcomeOf(const Expectation& expected) {
    Reading reading;
    reading.causeErreur = expected.letter;
    if (expected.kind == Expectation::Kind::Error) {
        reading.error.emplace(expected.error.number, u"", u"");
    }
    return outcomeOf(reading);
}

/// What a question's own check can come to, as its scenario file declares it.
std::set<std::string> outcomesOf(const language::ScenarioFile& file) {
    std::set<std::string> outcomes{outcomeOf(file.contract.success())};
    for (const language::Meaning& meaning : file.contract.meanings) {
        outcomes.insert(outcomeOf(meaning.verdict));
    }
    return outcomes;
}

/// What came of the learners of all questions.
struct LearnersTotals {
    std::size_t learners = 0;
    std::size_t checks = 0;
    std::size_t disagreements = 0;
    std::size_t outcomes = 0; ///< of the questions' own checks
    std::size_t missing = 0;  ///< of them, those that no learner came to
};

/// The learners of one question.
class Classroom {
public:
    Classroom(const language::ScenarioFile& file, std::uint32_t draw)
        : file_(file), outcomesSought_(outcomesOf(file)), course_(file, makeEmbeddedWorld), draw_(draw) {}

    /// Stops at the first disagreement, whose scenario is saved in `folder`. `work` is told of every learner.
    void run(std::size_t runs, const std::string& folder, std::ostream& out,
             const std::function<void(std::size_t run)>& work) {
        const learners::Learner learner(file_, course_, draw_);
        while (runs_ != runs && disagreements_ == 0) {
            work(++runs_);
            const Record record = learner.work();
            for (const Finding& finding : record.findings) {
                ++outcomes_[outcomeOf(finding.read)];
            }
            if (!record.isAgreed()) {
                ++disagreements_;
                save(record, folder, out);
            }
        }
    }

    /// One line of figures; true where all was agreed on, and more than one thing came out where more can.
    bool tell(std::ostream& out) const {
        out << "question " << file_.question << ": " << runs_ << " runs;";
        for (const auto& [outcome, count] : outcomes_) {
            out << ' ' << outcome << ' ' << count << ',';
        }
        const std::vector<std::string> missing = outcomesMissing();
        for (const std::string& outcome : missing) {
            out << " no " << outcome << ',';
        }
        out << ' ' << disagreements_ << " disagreements\n";
        const bool isMonotonous = outcomesSought_.size() > 1 && missing.size() + 1 >= outcomesSought_.size();
        if (isMonotonous) {
            out << "question " << file_.question << ": the learners do not come to enough\n";
        }
        return !isMonotonous && disagreements_ == 0;
    }

    void addTo(LearnersTotals& totals) const {
        totals.learners += runs_;
        for (const auto& [outcome, count] : outcomes_) {
            totals.checks += count;
        }
        totals.disagreements += disagreements_;
        totals.outcomes += outcomesSought_.size();
        totals.missing += outcomesMissing().size();
    }

private:
    [[nodiscard]] std::vector<std::string> outcomesMissing() const {
        std::vector<std::string> missing(outcomesSought_.begin(), outcomesSought_.end());
        std::erase_if(missing, [this](const std::string& outcome) { return outcomes_.contains(outcome); });
        return missing;
    }

    void save(const Record& record, const std::string& folder, std::ostream& out) const {
        const auto disagrees = [this](const Moves& moves) {
            if (moves.empty() || moves.back() != learners::checkMove) {
                return false;
            }
            const auto findings = learners::replay(file_.question, course_, moves);
            return findings && !findings->back().isAgreed();
        };
        const bool isReproduced = disagrees(record.moves);
        const Moves moves = isReproduced ? learners::shrunk(record.moves, disagrees) : record.moves;
        const std::vector<Finding> findings =
            isReproduced ? learners::replay(file_.question, course_, moves).value() : record.findings;
        const std::string text = scenarioText(file_, moves, findings, "what a learner did");
        const std::string path = folder + "/learner-0" + std::to_string(file_.question) + ".scn";
        out << "question " << file_.question << ", run " << runs_ << ": expected " << findings.back().wanted.display()
            << ", the host reads " << findings.back().read.display()
            << (isReproduced ? "" : ", but not when the moves are made again") << '\n'
            << text << (std::ofstream(path) << text ? "saved as " : "cannot be saved as ") << path << std::endl;
    }

    const language::ScenarioFile& file_;
    std::set<std::string> outcomesSought_;
    Course course_;
    learners::Draw draw_;
    std::size_t runs_ = 0;
    std::size_t disagreements_ = 0;
    std::map<std::string, std::size_t> outcomes_;
};

/// Lets learners work at random on the embedded PowerPoint and compares the module's verdicts with those of judges that
/// read the documents by themselves; prints what came out, and the shortest scenario of each disagreement.
ExitCode letLearn(const LearnersRequest& request, const CommandContext& at) {
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    at.out << request.runs << " learners a question, --draw " << draw << std::endl;
    std::size_t passed = 0;
    std::size_t failed = 0;
    LearnersTotals totals;
    Watch watch(at.out);
    const std::vector<std::filesystem::path> paths = at.library.filesOfCourse(request.questions);
    std::size_t begun = 0; ///< learners of the questions before
    for (const std::filesystem::path& path : paths) {
        watch.next("the learners of " + path.string());
        const language::ScenarioFile file = load(path);
        Classroom classroom(file, draw + static_cast<std::uint32_t>(file.question));
        classroom.run(request.runs, request.folder, at.out, [&](std::size_t run) {
            at.progress.at("learners of " + std::to_string(file.question), begun + run, paths.size() * request.runs);
        });
        begun += request.runs;
        at.progress.clear();
        ++(classroom.tell(at.out) ? passed : failed);
        classroom.addTo(totals);
        at.out << std::flush;
    }
    at.out << totals.learners << " learners, " << totals.checks << " checks, " << totals.disagreements
           << " disagreements, " << totals.missing << " of " << totals.outcomes << " outcomes never reached, "
           << processorSeconds() << " s of processor time\n";
    at.out << passed << " passed, " << failed << " failed\n";
    return failed == 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addLearners(CLI::App& command) {
    const auto request = std::make_shared<LearnersRequest>();
    addQuestions(command, request->questions);
    command.add_option("--runs", request->runs, "Learners of a question")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
    command.add_option("--draw", request->draw, "Number that the learners are drawn with (at random)");
    command.add_option("--save", request->folder, "Folder for the scenarios of disagreements")->capture_default_str();
    return [request](const CommandContext& at) { return letLearn(*request, at); };
}

} // namespace trials
