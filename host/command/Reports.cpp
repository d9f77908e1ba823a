#include "host/command/Reports.h"

#include "host/report/JUnit.h"
#include "host/report/Json.h"
#include "host/report/Page.h"

#include <chrono>

namespace host {

using report::Report;

namespace {

/// The day and the time, in UTC: `2026-11-21 10:08 UTC`.
std::string now() {
    using namespace std::chrono;
    const auto moment = floor<minutes>(system_clock::now());
    const auto midnight = floor<days>(moment);
    const year_month_day date(midnight);
    const hh_mm_ss time(moment - midnight);
    const auto twoDigits = [](auto number) { return std::to_string(100 + number).substr(1); };
    return std::to_string(static_cast<int>(date.year())) + "-" + twoDigits(static_cast<unsigned>(date.month())) + "-" +
           twoDigits(static_cast<unsigned>(date.day())) + " " + twoDigits(time.hours().count()) + ":" +
           twoDigits(time.minutes().count()) + " UTC";
}

std::string asPageOfNow(const Report& report) {
    return report::asPage(report, now());
}

} // namespace

Reports::Reports(const ReportNames& names) {
    add(names.page, report::pageBeginning, asPageOfNow);
    add(names.junit, report::junitBeginning, report::asJUnit);
    add(names.json, report::jsonBeginning, report::asJson);
    if (!names.junit.empty()) {
        junit_.emplace(names.junit, std::string(report::junitBeginning));
    }
}

void Reports::add(const std::string& name, std::string_view beginning, std::string (*form)(const Report&)) {
    if (!name.empty()) {
        all_.push_back({OutputFile(name, std::string(beginning)), form});
    }
}

void Reports::prepare(const std::vector<std::filesystem::path>& inputs) const {
    std::vector<OutputFile> files;
    for (const Wanted& report : all_) {
        files.push_back(report.file);
    }
    OutputFile::prepare(files, inputs);
}

void Reports::write(const Report& report) const {
    for (const Wanted& wanted : all_) {
        wanted.file.write(wanted.form(report));
    }
}

void Reports::writeWrong(const std::vector<language::WrongLines>& files) const {
    if (junit_) {
        Report report;
        for (const language::WrongLines& wrong : files) {
            report.emplace_back();
            report.back().file = wrong.file;
            report.back().wrongLines = wrong.remarks;
        }
        junit_->write(report::asJUnit(report));
    }
}

} // namespace host
