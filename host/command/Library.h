#pragma once

#include "host/language/Ast.h"
#include "host/run/Course.h"

#include <filesystem>

namespace host {

/// The scenario files of a folder and of those below it: a question's is named after it, "0306.scn"; others
/// ("session.scn") go by their own names.
class Library {
public:
    explicit Library(std::filesystem::path folder) : folder_(std::move(folder)) {}

    [[nodiscard]] const std::filesystem::path& folder() const noexcept { return folder_; }
    /// All scenario files, sorted by name.
    [[nodiscard]] std::vector<std::filesystem::path> files() const;
    /// The file of a question, or where it would be looked for. Raises UsageError for a number that is no question of
    /// the course.
    [[nodiscard]] std::filesystem::path fileOf(std::int32_t question) const;
    /// The file of a question, by its number (306, 0306); else the file of that name. Raises UsageError for a number
    /// that is no question of the course.
    [[nodiscard]] std::filesystem::path fileNamed(const std::string& name) const;
    /// The files of several such names, each once; all scenario files where there is no name.
    [[nodiscard]] std::vector<std::filesystem::path> filesNamed(const std::vector<std::string>& names) const;
    [[nodiscard]] std::vector<std::filesystem::path> filesOf(const std::vector<std::int32_t>& questions) const;
    /// The same, but the files of all questions of the course where none is named.
    [[nodiscard]] std::vector<std::filesystem::path> filesOfCourse(const std::vector<std::int32_t>& questions) const;

private:
    std::filesystem::path folder_;
};

/// Scenario files with wrong lines.
struct WrongFiles : std::exception {
    explicit WrongFiles(std::vector<language::WrongLines> found) : files(std::move(found)) {}
    [[nodiscard]] const char* what() const noexcept override { return files.front().what(); }

    std::vector<language::WrongLines> files;
};

/// Reads scenario files. Raises WrongFiles, or UsageError where one cannot be read.
///@{
[[nodiscard]] language::ScenarioFile load(const std::filesystem::path& path);
[[nodiscard]] std::vector<language::ScenarioFile> load(const std::vector<std::filesystem::path>& paths);
///@}

/// What the course delivers for a question: its own files in a folder, or where none is named what the scenario file
/// builds. Raises UsageError where there is no presentation or it cannot be built.
[[nodiscard]] Course courseOf(const language::ScenarioFile& file, const std::string& folder,
                              const WorldMaker& makeWorld);

/// What the presentation lacks of what the scenario file says that it must hold, in lines for its author; empty where
/// nothing is amiss.
[[nodiscard]] std::string shortfallOf(const Course& course, const language::ScenarioFile& file,
                                      const WorldMaker& makeWorld);

/// A command line that asks for something that does not exist, in words for its user.
struct UsageError : std::exception {
    explicit UsageError(std::string text) : message(std::move(text)) {}
    [[nodiscard]] const char* what() const noexcept override { return message.c_str(); }

    std::string message;
};

} // namespace host
