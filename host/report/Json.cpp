#include "host/report/Json.h"

#include "host/report/Letters.h"

#include <nlohmann/json.hpp>

namespace host::report {

namespace {

using nlohmann::ordered_json;

ordered_json toJson(const Attempt& attempt) {
    ordered_json moves = ordered_json::array();
    for (const Move& move : attempt.moves) {
        moves.push_back({{"line", move.line}, {"statement", move.text}});
    }
    return {{"moves", std::move(moves)},
            {"expected", attempt.expected ? ordered_json(attempt.expected->display()) : ordered_json()},
            {"read", attempt.reading ? ordered_json(attempt.reading->display()) : ordered_json()},
            {"meaning", attempt.reading ? attempt.reading->meaning : std::string()},
            {"reason", attempt.reading ? attempt.reading->reason : std::string()}};
}

ordered_json toJson(const FileResult& file, const Result& result) {
    ordered_json failures = ordered_json::array();
    for (const language::Remark& failure : result.failures) {
        failures.push_back(failure.in(file.file));
    }
    ordered_json attempts = ordered_json::array();
    for (const Attempt& attempt : result.attempts) {
        attempts.push_back(toJson(attempt));
    }
    return {{"title", result.title},           {"line", result.line},   {"passed", result.passed()},
            {"failures", std::move(failures)}, {"calls", result.calls}, {"milliseconds", milliseconds(result.time)},
            {"attempts", std::move(attempts)}};
}

ordered_json toJson(const FileResult& file) {
    ordered_json letters = ordered_json::array();
    for (const Letter& letter : lettersOf(file)) {
        ordered_json titles = ordered_json::array();
        for (const std::size_t place : letter.reachedBy) {
            titles.push_back(file.results.at(place).title);
        }
        letters.push_back({{"letter", letter.letter},
                           {"general", letter.isGeneral},
                           {"remark", letter.isRemark},
                           {"meaning", letter.meaning},
                           {"reachedBy", std::move(titles)}});
    }
    ordered_json scenarios = ordered_json::array();
    for (const Result& result : file.results) {
        scenarios.push_back(toJson(file, result));
    }
    return {{"file", file.file},
            {"question", file.question},
            {"subject", file.subject},
            {"passed", file.passed()},
            {"failed", file.failed()},
            {"letters", std::move(letters)},
            {"scenarios", std::move(scenarios)}};
}

} // namespace

std::string asJson(const Report& report) {
    const Totals totals(report);
    ordered_json files = ordered_json::array();
    for (const FileResult& file : report) {
        files.push_back(toJson(file));
    }
    const ordered_json all{{"program", "exercise-host verify"},
                           {"passed", totals.passed},
                           {"failed", totals.failed},
                           {"calls", totals.calls},
                           {"milliseconds", milliseconds(totals.time)},
                           {"files", std::move(files)}};
    return all.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace host::report
