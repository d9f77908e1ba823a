#pragma once

namespace host {

/// How the program ends.
enum class ExitCode : int {
    Good = 0,
    FellShort = 1,  ///< a scenario fell short, or a measurement
    WrongUsage = 2, ///< a wrong command line, or a wrong line in a scenario file
    Hung = 3,       ///< a scenario did not come to its end
    Machine = 4,    ///< the computer itself did not give what is needed: room on a disk, a folder for temporary files
};

} // namespace host
