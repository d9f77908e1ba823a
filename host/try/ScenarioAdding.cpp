#include "host/try/ScenarioAdding.h"

#include "host/language/Parser.h"
#include "host/language/Words.h"
#include "host/language/Writer.h"
#include "host/world/OutputFile.h"
#include "host/world/RealFile.h"

#include <stdexcept>

namespace host {

namespace {

/// A scenario file with one more scenario, its lines ended as the others are.
std::string withScenario(std::string file, std::string scenario) {
    const bool endsAsOnWindows = file.find("\r\n") != std::string::npos;
    std::string added = (file.ends_with('\n') ? "\n" : "\n\n") + std::move(scenario);
    if (endsAsOnWindows) {
        replaceAll(added, "\n", "\r\n");
    }
    return std::move(file) + added;
}

/// Raises std::runtime_error where a text is no scenario file.
language::ScenarioFile parsed(const std::string& name, const std::string& text) {
    try {
        return language::parse(name, text);
    } catch (const language::WrongLines& wrong) {
        throw std::runtime_error("The scenario cannot be added: " + wrong.remarks.front().in(name));
    }
}

} // namespace

void addScenario(const std::string& name, const language::ScenarioFile& file, std::u16string_view title,
                 const std::vector<std::u16string>& statements) {
    const Bytes content = contentsOf(pathOf(name));
    const std::string before(content.begin(), content.end());
    const std::string text = withScenario(before, language::scenarioBlock(title, statements));
    const language::ScenarioFile there = parsed(name, text);
    if (there.question != file.question) {
        throw std::runtime_error(name + " is about question " + std::to_string(there.question));
    }
    OutputFile(name, before).write(text);
}

} // namespace host
