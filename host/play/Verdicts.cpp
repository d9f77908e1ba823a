#include "host/play/Verdicts.h"

#include "automation/Text.h"

#include <regex>

namespace host {

namespace {

/// The shapes that a reason speaks of, by their places: "Slide 1, shape 4 (ZOR4): Width is 60."
nlohmann::json shapesOf(const std::string& reason) {
    static const std::regex place("slide (\\d+), shape (\\d+)", std::regex::icase);
    nlohmann::json shapes = nlohmann::json::array();
    for (std::sregex_iterator found(reason.begin(), reason.end(), place); found != std::sregex_iterator(); ++found) {
        shapes.push_back({{"slide", std::stoi((*found)[1])}, {"shape", std::stoi((*found)[2])}});
    }
    return shapes;
}

} // namespace

nlohmann::json verdictOf(const Reading& reading) {
    const bool isError = reading.error && reading.error->number() != 0;
    const bool passed =
        !reading.erreurGenerale && !isError && (reading.error || reading.causeErreur.empty() || reading.bravoNuance);
    return {{"passed", passed},           {"letter", automation::toUtf8(reading.causeErreur)},
            {"reads", reading.display()}, {"meaning", reading.meaning},
            {"reason", reading.reason},   {"shapes", shapesOf(reading.reason)}};
}

} // namespace host
