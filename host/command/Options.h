#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>

namespace host {

/// The number of a question, which may be given as its file is named, too: 0306 is 306.
CLI::Option* addQuestion(CLI::App& command, const std::string& name, std::int32_t& question);

/// The numbers of any questions; all where none is named.
void addQuestions(CLI::App& command, std::vector<std::int32_t>& questions);

/// A question by its number, or a scenario file by its name, which `--file` may stand before.
CLI::Option* addScenarioFile(CLI::App& command, std::string& named);
/// Any of them; all of the library where none is named.
void addScenarioFiles(CLI::App& command, std::vector<std::string>& named);

/// A number of things, one at least.
[[nodiscard]] CLI::Validator wholeNumber();

/// The folder of the course's own files; empty for those that the scenario file builds.
void addCourse(CLI::App& command, std::string& folder);

} // namespace host
