#pragma once

#include "host/language/Ast.h"
#include "host/world/World.h"

#include <filesystem>

namespace host {

/// The files that a course delivers for its questions: the presentation that the course block of a scenario file
/// builds, and whatever other files the block creates in the host's folder.
class Course {
public:
    /// Builds the files in a world of their own. Raises language::Failure where a statement raises.
    Course(const language::ScenarioFile& file, const WorldMaker& makeWorld);
    /// The course's own files for a question, in a folder: those whose names end with its number. Raises
    /// std::runtime_error where there is no presentation.
    Course(const std::filesystem::path& folder, std::int32_t question);

    /// What the presentation built lacks of what the scenario file says of it.
    [[nodiscard]] const std::vector<language::Remark>& shortcomings() const noexcept { return shortcomings_; }
    /// True for files that a scenario file builds, false for the course's own.
    [[nodiscard]] bool isBuilt() const noexcept { return isBuilt_; }

    /// Puts the files into the host's folder, the presentation under its name for a question: "07305" and the number.
    /// Returns their names.
    std::vector<std::u16string> deliver(World& world, std::int32_t question) const;

private:
    bool isBuilt_;
    Bytes presentation_;
    std::vector<std::pair<std::u16string, Bytes>> others_;
    std::vector<language::Remark> shortcomings_;
};

} // namespace host
