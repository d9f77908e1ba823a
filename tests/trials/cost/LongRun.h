#pragma once

#include "host/run/TrainingHost.h"
#include "tests/trials/Host.h"
#include "tests/trials/cost/ProcessUse.h"

namespace trials::cost {

/// What a process holds after a number of questions.
struct Holding {
    std::size_t questions = 0;
    ProcessUse use;
    std::size_t objects = 0;           ///< automation objects alive
    std::vector<std::string> leftOpen; ///< registry keys and the like; asked for at the end alone
};

/// A file with its course, built.
struct BuiltCourse {
    const language::ScenarioFile& file;
    Course course;
};

/// Has one module in one PowerPoint work through questions, one after the other and round and round, each begun, worked
/// on, checked and closed, and looks ten times at what the process holds, first after a tenth of the way. `onQuestion`
/// is told how many have been begun. Raises what the module raises.
[[nodiscard]] std::vector<Holding> longRun(const std::vector<BuiltCourse>& courses, std::size_t questions,
                                           const WorldMaker& makeWorld,
                                           const std::function<void(std::size_t)>& onQuestion);

} // namespace trials::cost
