#include "automation/Text.h"
#include "host/command/Options.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "tests/trials/command/Commands.h"
#include "tests/trials/histories/History.h"
#include "tests/trials/histories/PresentationsIn.h"
#include "tests/trials/histories/SecondReader.h"
#include "tests/trials/histories/View.h"
#include "tests/trials/learners/Shrink.h"

#include <ostream>

namespace trials {

namespace {

using histories::presentationsIn;
using histories::Statements;

struct HistoriesRequest {
    std::size_t runs = 300;
    std::optional<std::uint32_t> draw; ///< of the random numbers; a new one where it is missing
    std::filesystem::path decks; ///< folder of presentations to begin with, each with a history; new ones where empty
    std::filesystem::path reader;
};

/// What the second reader sees otherwise in what statements make; empty where it sees the same, or they make nothing.
std::string differenceOf(const std::filesystem::path& deck, const Statements& statements,
                         histories::SecondReader& reader, const std::filesystem::path& scratch) {
    const simulator::PresentationPtr presentation = histories::replay(deck, statements);
    if (!presentation) {
        return {};
    }
    std::ofstream(scratch, std::ios::binary) << simulator::powerpoint::writePresentation(*presentation);
    return histories::differenceOf(histories::viewOf(*presentation), reader.view(scratch));
}

/// Compares histories; prints the fewest statements of each one that is seen otherwise.
ExitCode compareHistories(const HistoriesRequest& request, const CommandContext& at) {
    constexpr std::size_t mostPrinted = 5;
    histories::SecondReader reader(request.reader);
    const std::filesystem::path scratch = request.reader / "history.ppt";
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    at.out << request.runs << " histories, --draw " << draw << std::endl;
    learners::Draw chance(draw);
    const std::vector<std::filesystem::path> decks = presentationsIn(request.decks);
    std::size_t statements = 0;
    std::size_t failed = 0;
    for (std::size_t run = 1; run <= request.runs; ++run) {
        at.progress.at("histories", run, request.runs);
        const std::filesystem::path deck = decks.empty() ? std::filesystem::path() : decks[run % decks.size()];
        const auto difference = [&](const Statements& each) { return differenceOf(deck, each, reader, scratch); };
        const Statements made = histories::anyHistory(deck, chance);
        statements += made.size();
        if (difference(made).empty()) {
            continue;
        }
        if (++failed <= mostPrinted) {
            const Statements fewest =
                learners::shrunk(made, [&](const Statements& fewer) { return !difference(fewer).empty(); });
            at.progress.clear();
            at.out << "scenario \"history " << run << " " << deck.filename().string() << "\"\n";
            for (const std::u16string& each : fewest) {
                at.out << "  " << automation::toUtf8(each) << '\n';
            }
            at.out << difference(fewest);
        }
    }
    at.progress.clear();
    at.out << request.runs << " histories, " << statements << " statements, " << failed << " disagreements\n"
           << request.runs - failed << " passed, " << failed << " failed\n";
    return failed == 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addHistories(CLI::App& command) {
    const auto request = std::make_shared<HistoriesRequest>();
    command.add_option("--runs", request->runs, "Histories")->capture_default_str()->check(CLI::PositiveNumber);
    command.add_option("--draw", request->draw, "Number that the histories are drawn with (at random)");
    command.add_option("--decks", request->decks, "Folder of presentations to begin with")
        ->check(CLI::ExistingDirectory);
    command.add_option("--reader", request->reader, "Folder of the second reader's pipes")->required();
    return [request](const CommandContext& at) { return compareHistories(*request, at); };
}

} // namespace trials
