#include "automation/Text.h"
#include "host/command/Library.h"
#include "host/reason/Explainer.h"
#include "host/run/Runner.h"
#include "host/run/Witnesses.h"
#include "tests/support/Program.h"

#include <fstream>
#include <sstream>

namespace reason_tests {

/// Writes down what is said of each verdict of a scenario other than a plain success.
class Clerk final : public host::Witness {
public:
    explicit Clerk(std::vector<std::string>& sentences) : sentences_(sentences) {}

    void judged(const host::Reading& reading) override {
        if (reading.error || !reading.causeErreur.empty()) {
            sentences_.push_back(reading.explained());
        }
    }

private:
    std::vector<std::string>& sentences_;
};

/// The verdict and its meaning, which stand before what was read.
std::string_view outcomeOf(std::string_view sentence) {
    return sentence.substr(0, sentence.find(". "));
}

/// What is said of each outcome of a file: a line for every one.
std::string sentencesOf(const std::filesystem::path& path) {
    const host::language::ScenarioFile file = host::load(path);
    const host::Runner runner(file, host::makeEmbeddedWorld);
    std::vector<std::string> sentences;
    for (const host::language::Scenario& scenario : file.scenarios) {
        host::reason::Explainer explainer(file.contract);
        const auto makeWitness = [&](host::World& /*world*/) {
            auto witnesses = std::make_unique<host::Witnesses>();
            witnesses->add(explainer);
            witnesses->add(std::make_unique<Clerk>(sentences));
            return witnesses;
        };
        EXPECT_TRUE(runner.run(scenario, makeWitness, explainer.observer()).failures.empty());
    }
    std::sort(sentences.begin(), sentences.end());
    const auto isSame = [](const auto& left, const auto& right) { return outcomeOf(left) == outcomeOf(right); };
    sentences.erase(std::unique(sentences.begin(), sentences.end(), isSame), sentences.end());
    std::string text = path.stem().string() + '\n';
    for (const std::string& sentence : sentences) {
        text += "  " + sentence + '\n';
    }
    return text;
}

/// Each outcome of the questions and of a session says what has decided it. A sentence that has changed on purpose is
/// taken over from the file that the test writes beside the program.
TEST(Reason, NamesWhatDecidesEveryOutcome) {
    std::string all;
    for (const std::filesystem::path& path : host::Library(SCENARIOS).files()) {
        all += path.parent_path().filename() == "questions" ? sentencesOf(path) : "";
    }
    std::ifstream known(REASONS);
    std::stringstream expected;
    expected << known.rdbuf();
    if (all != expected.str()) {
        std::ofstream("outcomes.txt") << all;
    }
    EXPECT_EQ(all, expected.str());
}

} // namespace reason_tests
