#pragma once

#include "host/command/Library.h"
#include "host/command/Progress.h"
#include "host/try/LineReader.h"
#include "host/world/World.h"

#include <iosfwd>

namespace host {

/// How the program ends.
enum class ExitCode : int {
    Good = 0,
    FellShort = 1,  ///< a scenario fell short, or a measurement
    WrongUsage = 2, ///< a wrong command line, or a wrong line in a scenario file
    Hung = 3,       ///< a scenario did not come to its end
};

/// What `exercise-host run` is asked for.
struct RunRequest {
    std::int32_t question = 306;
    std::string scenario; ///< its title; empty for the first that ends in a success
    bool asJson = false;
    bool withTrace = false;
    std::string course;   ///< folder of the course's own files; empty for those that the scenario file builds
    std::string pictures; ///< folder for pictures of the slide before and after; empty for none
};

/// Prepares a question and talks with the course author, who states moves, asks for verdicts and saves scenarios.
[[nodiscard]] ExitCode tryOut(std::int32_t question, const Library& library, const WorldMaker& makeWorld,
                              LineReader& lines, std::ostream& out);

/// What `exercise-host verify` is asked for: all files of the library where nothing is named.
struct VerifyRequest {
    std::vector<std::int32_t> questions;
    std::vector<std::string> files;
    bool countsCalls = true; ///< the world lists the calls of the module
    std::string page;        ///< file for a report as a page; empty for none
    std::string junit;       ///< file for a report as build servers read it; empty for none
    std::string json;        ///< file for a report as JSON; empty for none
};

/// What `exercise-host recheck` is asked for.
struct RecheckRequest {
    std::string file; ///< a working presentation that a learner has saved
    std::int32_t question = 0;
    std::string course; ///< folder of the course's own files; empty for those that the scenario file builds
};

/// Judges a saved working presentation and names the checks that a file does not allow.
[[nodiscard]] ExitCode recheck(const RecheckRequest& request, const Library& library, const WorldMaker& makeWorld,
                               std::ostream& out);

/// What `exercise-host torture` is asked for.
struct TortureRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t every = 1;               ///< of the calls of an operation one in so many is made to fail
    std::optional<std::uint32_t> draw;   ///< of the random numbers that pick the first; a new one where it is missing
};

/// What `exercise-host bench` is asked for.
struct BenchRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t runs = 0;                ///< questions of a long run; 0 for what questions cost
};

/// What `exercise-host learners` is asked for.
struct LearnersRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t runs = 250;              ///< learners of a question
    std::optional<std::uint32_t> draw;   ///< of the random numbers that guide them; a new one where it is missing
    std::string folder = ".";            ///< where the scenario of a disagreement is saved
};

/// Runs one scenario and tells it, up to the four values that the host reads last.
[[nodiscard]] ExitCode run(const RunRequest& request, const Library& library, const WorldMaker& makeWorld,
                           std::ostream& out);

/// Runs all scenarios, prints what falls short and writes the reports asked for.
[[nodiscard]] ExitCode verify(const VerifyRequest& request, const Library& library, const WorldMaker& makeWorld,
                              std::ostream& out, Progress& progress);

/// Makes the calls fail that leave the module, one by one, and prints what is then amiss, and a line of totals.
[[nodiscard]] ExitCode runTorture(const TortureRequest& request, const Library& library, const WorldMaker& makeWorld,
                                  std::ostream& out, Progress& progress);

/// Lets learners work at random on the embedded PowerPoint and compares the module's verdicts with those of judges that
/// read the documents by themselves; prints what came out, and the shortest scenario of each disagreement.
[[nodiscard]] ExitCode runLearners(const LearnersRequest& request, const Library& library, std::ostream& out);

/// Prints what questions cost in calls and time, and how the cost grows with a deck; or what a long run leaves behind.
[[nodiscard]] ExitCode runBench(BenchRequest request, const Library& library, const WorldMaker& makeWorld,
                                std::ostream& out, Progress& progress);

/// Prints the scenarios of questions, of all where none is named.
[[nodiscard]] ExitCode list(const std::vector<std::int32_t>& questions, const Library& library, std::ostream& out);

} // namespace host
