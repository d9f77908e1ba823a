#include "host/report/Result.h"

#include "automation/Text.h"

#include <algorithm>
#include <filesystem>
#include <numeric>

namespace host::report {

std::size_t FileResult::passed() const noexcept {
    return static_cast<std::size_t>(std::count_if(results.begin(), results.end(), std::mem_fn(&Result::passed)));
}

std::chrono::nanoseconds FileResult::time() const noexcept {
    return std::accumulate(results.begin(), results.end(), std::chrono::nanoseconds(0),
                           [](auto sum, const Result& result) { return sum + result.time; });
}

std::string FileResult::name() const {
    return std::filesystem::path(automation::fromUtf8(file)).stem().string();
}

Totals::Totals(const Report& report) noexcept {
    for (const FileResult& file : report) {
        passed += file.passed();
        failed += file.failed();
        time += file.time();
        for (const Result& result : file.results) {
            calls += result.calls;
        }
    }
}

double milliseconds(std::chrono::nanoseconds time) noexcept {
    return std::chrono::duration<double, std::milli>(time).count();
}

} // namespace host::report
