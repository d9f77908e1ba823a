#include "host/report/JUnit.h"

#include "simulator/picture/Markup.h"

#include <numeric>

namespace host::report {

namespace {

using simulator::picture::Markup;

std::string seconds(std::chrono::nanoseconds time) {
    const long long microseconds = std::chrono::duration_cast<std::chrono::microseconds>(time).count();
    const std::string digits = std::to_string(1000000 + microseconds % 1000000);
    return std::to_string(microseconds / 1000000) + "." + digits.substr(1);
}

void writeCase(const FileResult& file, const Result& result, Markup& out) {
    const Markup::Element scenario = out.element("testcase", {{"classname", "K73053." + file.name()},
                                                              {"name", result.title},
                                                              {"file", file.file},
                                                              {"line", std::to_string(result.line)},
                                                              {"time", seconds(result.time)}});
    if (result.passed()) {
        return;
    }
    std::string all;
    for (const language::Remark& failure : result.failures) {
        all += failure.in(file.file) + "\n";
    }
    out.leaf("failure", {{"message", result.failures.front().message}}, all);
}

} // namespace

std::size_t countOfWrong(const Report& report) {
    return std::accumulate(report.begin(), report.end(), std::size_t{0},
                           [](std::size_t sum, const FileResult& file) { return sum + file.wrongLines.size(); });
}

void writeError(const FileResult& file, const language::Remark& wrong, Markup& out) {
    const Markup::Element line = out.element("testcase", {{"classname", "K73053." + file.name()},
                                                          {"name", "line " + std::to_string(wrong.place.line)},
                                                          {"file", file.file},
                                                          {"line", std::to_string(wrong.place.line)},
                                                          {"time", seconds({})}});
    out.leaf("error", {{"message", wrong.message}}, wrong.in(file.file) + "\n");
}

std::string asJUnit(const Report& report) {
    const Totals totals(report);
    Markup out;
    out.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    {
        const Markup::Element suites =
            out.element("testsuites", {{"name", "exercise-host verify"},
                                       {"tests", std::to_string(totals.passed + totals.failed + countOfWrong(report))},
                                       {"failures", std::to_string(totals.failed)},
                                       {"errors", std::to_string(countOfWrong(report))},
                                       {"time", seconds(totals.time)}});
        for (const FileResult& file : report) {
            out.raw("\n");
            const Markup::Element suite =
                out.element("testsuite", {{"name", file.name()},
                                          {"tests", std::to_string(file.results.size() + file.wrongLines.size())},
                                          {"failures", std::to_string(file.failed())},
                                          {"errors", std::to_string(file.wrongLines.size())},
                                          {"skipped", "0"},
                                          {"time", seconds(file.time())}});
            for (const language::Remark& wrong : file.wrongLines) {
                out.raw("\n");
                writeError(file, wrong, out);
            }
            for (const Result& result : file.results) {
                out.raw("\n");
                writeCase(file, result, out);
            }
        }
    }
    return out.take() + "\n";
}

} // namespace host::report
