#include "simulator/files/WholeFile.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "tests/trials/command/CostParts.h"
#include "tests/trials/histories/SecondReader.h"

#include <algorithm>
#include <ctime>
#include <ostream>

namespace trials {

namespace {

constexpr int reads = 500;     ///< after which both readers are warm
constexpr int warmReads = 100; ///< the last of them, whose median counts

long microsecondsToRead(const std::filesystem::path& file) {
    const std::clock_t begun = std::clock();
    static_cast<void>(simulator::powerpoint::readPresentation(simulator::files::wholeFile(file).value()));
    return static_cast<long>((std::clock() - begun) * 1'000'000 / CLOCKS_PER_SEC);
}

double medianOfWarm(std::vector<long> microseconds) {
    const auto middle = microseconds.end() - warmReads / 2;
    std::nth_element(microseconds.end() - warmReads, middle, microseconds.end());
    return static_cast<double>(*middle) / 1000;
}

} // namespace

void printReadingCost(const CostRequest& request, const CommandContext& at) {
    cost::DeckSize size;
    size.slides = request.slides.value_or(size.slides);
    const language::ScenarioFile file = cost::largeDeck(size);
    const Bytes bytes = Course(file, at.worlds.embedded).filesFor(file.question).front().second;
    const std::filesystem::path deck = request.reader / "deck.ppt";
    std::ofstream(deck, std::ios::binary) << std::string(bytes.begin(), bytes.end());
    histories::SecondReader reader(request.reader);
    std::vector<long> ours;
    std::vector<long> theirs;
    for (int i = 0; i < reads; ++i) {
        ours.push_back(microsecondsToRead(deck));
        theirs.push_back(reader.timeOf(deck));
    }
    at.out << "A deck of " << size.slides << " slides is read in " << medianOfWarm(ours) << " ms of processor time, "
           << medianOfWarm(theirs) << " by the second reader\n";
}

} // namespace trials
