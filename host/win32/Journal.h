#pragma once

#include "automation/Unmoved.h"
#include "host/win32/Handle.h"
#include "host/win32/Loan.h"

namespace host {

/// What is borrowed of this machine, noted in a file before it is changed: where a run is ended before it could give
/// everything back, the next one does, and then removes no file.
class Journal : automation::Unmoved {
public:
    /// Opens the journal of the current user, with what an earlier run has left in it. Raises where another run has it.
    Journal();
    /// Gives everything back.
    ~Journal();

    /// To be called before the change. Raises the system's error where the file cannot be written.
    void note(Loan loan);
    /// Gives everything back, what was borrowed last first. What cannot be given back is said on the error output and
    /// stays in the file for the next run. Returns how much was given back.
    std::size_t giveBack() noexcept;

    /// The file, with its full path.
    [[nodiscard]] static std::filesystem::path path();

private:
    void readLeft();
    void rewrite();
    void append(const Loan& loan);

    Handle file_;
    std::vector<Loan> left_; ///< by earlier runs
    std::vector<Loan> own_;  ///< of this run
};

} // namespace host
