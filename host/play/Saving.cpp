#include "host/play/Saving.h"

#include "automation/Text.h"
#include "host/language/Parser.h"
#include "host/language/Writer.h"
#include "host/world/RealFile.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace host {

namespace {

namespace fs = std::filesystem;
using language::ScenarioFile;

/// The file of that name, which ends as scenario files do.
fs::path scenarioFileNamed(const std::string& name) {
    fs::path path = pathOf(name);
    if (name.empty() || name.find_first_of("/\\:") != std::string::npos || path.extension() != ".scn") {
        throw std::runtime_error("Name a file of the folder that exercise-host was started in, as mine.scn");
    }
    return path;
}

/// Makes sure that a file as it is can take a scenario more.
void demandTakes(const std::string& name, const ScenarioFile& there, const ScenarioFile& file,
                 std::u16string_view title) {
    if (there.question != file.question) {
        throw std::runtime_error(name + " is of question " + std::to_string(there.question) + ": name another file");
    }
    if (std::any_of(there.scenarios.begin(), there.scenarios.end(),
                    [&](const language::Scenario& each) { return each.title == title; })) {
        throw std::runtime_error(name + " has a scenario of that title already: give this one another");
    }
}

ScenarioFile parsed(const std::string& name, const std::string& text) {
    try {
        return language::parse(name, text);
    } catch (const language::WrongLines& wrong) {
        throw std::runtime_error(wrong.remarks.front().in(name));
    }
}

} // namespace

std::string appendScenario(const std::string& name, const ScenarioFile& file, std::u16string_view title,
                           const std::vector<std::u16string>& statements) {
    if (title.empty()) {
        throw std::runtime_error("Say in the title what the learner does");
    }
    const fs::path path = scenarioFileNamed(name);
    const bool isNew = !fs::exists(path);
    std::string text = language::scenarioText(file, title, statements);
    if (!isNew) {
        const Bytes there = contentsOf(path);
        const std::string before(there.begin(), there.end());
        demandTakes(name, parsed(name, before), file, title);
        text = (before.ends_with('\n') ? "\n" : "\n\n") + language::scenarioBlock(title, statements);
        static_cast<void>(parsed(name, before + text));
    }
    std::ofstream out(path, std::ios::binary | std::ios::app);
    if (!(out << text).flush()) {
        throw std::runtime_error(name + " cannot be written");
    }
    return "\"" + automation::toUtf8(title) + "\" is in " + fs::absolute(path).string() + (isNew ? ", a new file" : "");
}

} // namespace host
