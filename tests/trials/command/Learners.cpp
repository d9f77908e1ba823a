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

/// Saves the shortest scenario of a disagreement in a folder, and says what was expected and what the host reads.
void save(const language::ScenarioFile& file, const Course& course, const Record& record, const std::string& folder,
          std::ostream& out) {
    const auto disagrees = [&](const Moves& moves) {
        if (moves.empty() || moves.back() != learners::checkMove) {
            return false;
        }
        const auto findings = learners::replay(file.question, course, moves);
        return findings && !findings->back().isAgreed();
    };
    const bool isReproduced = disagrees(record.moves);
    const Moves moves = isReproduced ? learners::shrunk(record.moves, disagrees) : record.moves;
    const std::vector<Finding> findings =
        isReproduced ? learners::replay(file.question, course, moves).value() : record.findings;
    const std::string text = scenarioText(file, moves, findings, "what a learner did");
    const std::string path = folder + "/learner-0" + std::to_string(file.question) + ".scn";
    out << ": expected " << findings.back().wanted.display() << ", the host reads " << findings.back().read.display()
        << (isReproduced ? "" : ", but not when the moves are made again") << '\n'
        << text << (std::ofstream(path) << text ? "saved as " : "cannot be saved as ") << path << std::endl;
}

/// The learners of one question, up to the first disagreement, and a line of figures; true where all was agreed on, and
/// more than one thing came out where more can. `onRun` is told of every learner.
bool letLearn(const language::ScenarioFile& file, learners::Draw draw, const LearnersRequest& request,
              const CommandContext& at, const std::function<void(std::size_t run)>& onRun, LearnersTotals& totals) {
    const Course course(file, makeEmbeddedWorld);
    const learners::Learner learner(file, course, draw);
    const std::string question = "question " + std::to_string(file.question);
    std::map<std::string, std::size_t> reached;
    std::size_t runs = 0;
    bool isAgreed = true;
    while (runs != request.runs && isAgreed) {
        onRun(++runs);
        const Record record = learner.work();
        for (const Finding& finding : record.findings) {
            ++reached[outcomeOf(finding.read)];
        }
        totals.checks += record.findings.size();
        isAgreed = record.isAgreed();
        if (!isAgreed) {
            ++totals.disagreements;
            save(file, course, record, request.folder, at.out << question << ", run " << runs);
        }
    }
    totals.learners += runs;
    at.progress.clear();
    at.out << question << ": " << runs << " runs;";
    for (const auto& [outcome, count] : reached) {
        at.out << ' ' << outcome << ' ' << count << ',';
    }
    std::set<std::string> missing = outcomesOf(file);
    const std::size_t sought = missing.size();
    std::erase_if(missing, [&](const std::string& outcome) { return reached.contains(outcome); });
    for (const std::string& outcome : missing) {
        at.out << " no " << outcome << ',';
    }
    totals.outcomes += sought;
    totals.missing += missing.size();
    at.out << ' ' << (isAgreed ? 0 : 1) << " disagreements" << std::endl;
    const bool isMonotonous = sought > 1 && missing.size() + 1 >= sought;
    if (isMonotonous) {
        at.out << question << ": the learners do not come to enough" << std::endl;
    }
    return !isMonotonous && isAgreed;
}

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
        const auto onRun = [&](std::size_t run) {
            at.progress.at("learners of " + std::to_string(file.question), begun + run, paths.size() * request.runs);
        };
        const learners::Draw ofQuestion(draw + static_cast<std::uint32_t>(file.question));
        ++(letLearn(file, ofQuestion, request, at, onRun, totals) ? passed : failed);
        begun += request.runs;
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
