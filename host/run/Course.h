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

    /// True for files that a scenario file builds, false for the course's own.
    [[nodiscard]] bool isBuilt() const noexcept { return isBuilt_; }

    /// The presentation under its name for a question, "07305" and the number, and the other files.
    [[nodiscard]] std::vector<std::pair<std::u16string, Bytes>> filesFor(std::int32_t question) const;
    /// Puts these files into the host's folder. Returns their names.
    std::vector<std::u16string> deliver(World& world, std::int32_t question) const;

private:
    bool isBuilt_;
    Bytes presentation_;
    std::vector<std::pair<std::u16string, Bytes>> others_;
};

} // namespace host
