#pragma once

#include "host/run/Witness.h"
#include "tests/trials/Host.h"

#include <cstddef>
#include <string>
#include <vector>

namespace trials::trace {

/// The steps of the module; which one a call belongs to says what the host must get when it fails.
enum class Phase : std::uint8_t {
    Looking,    ///< is PowerPoint's window visible?
    Obtaining,  ///< the PowerPoint that the host brings is taken, or one is started
    Saving,     ///< what is the learner's is read: bars and folders
    Dialogs,    ///< dialogs are closed
    Closing,    ///< the settings kept from one question to the next are read
    Hanging,    ///< does it hang?
    Asking,     ///< does PowerPoint answer?
    Cleaning,   ///< the working files are closed and deleted
    Returning,  ///< the bars are put back
    Restoring,  ///< the folders are put back
    Creating,   ///< the question is created, the templates folder found
    Staging,    ///< the delivered files take their working names
    Layout,     ///< how the bars stand is read
    Arranging,  ///< the bars are arranged
    Tooltips,   ///< and the tooltips switched on
    Preparing,  ///< the question's Prepare
    Pointing,   ///< the folders are pointed at the exercise
    Startup,    ///< the startup dialog is set
    Fronting,   ///< PowerPoint is brought to the front
    Examining,  ///< the checks of every question
    Checking,   ///< the question's own check
    LookingEnd, ///< is its window visible still, when the module is left?
    Ending,     ///< PowerPoint is quit
};

/// True for what keeps the learner's command bars as they were, beside what is prescribed.
[[nodiscard]] constexpr bool keepsBars(Phase phase) noexcept {
    return phase == Phase::Layout || phase == Phase::Returning;
}

/// An operation of the host, and where its PowerPoint comes from.
struct Operation {
    enum class Arrival : std::uint8_t {
        Fresh,   ///< the host brings a PowerPoint that has just been started
        Brought, ///< the host brings one in which the learner has a presentation open and has arranged the bars by hand
        Started, ///< the module starts PowerPoint, whose bars the learner has arranged
    };

    HostCall call{};
    Arrival arrival{};
    bool isHeld = false; ///< for InitQuestion: a question has been begun before and not been closed

    /// In words: `InitQuestion (PowerPoint started)`.
    [[nodiscard]] std::string display() const;
};

/// A line of a trace: a walk from the application to a value, or a call of the system.
struct Line {
    Phase phase;
    std::string text;
};

/// Every call that leaves the module in an operation, in order. InitQuestion has gone before; before a TestePoint the
/// learner has made the first moves of the question's scenario file. Quitter closes the question.
[[nodiscard]] std::vector<Line> expectedTrace(std::int32_t question, const Operation& operation);

/// The number of words of each shape of each slide.
using Texts = std::vector<std::vector<int>>;

/// The same for a TestePoint of question 306 on such texts, where nothing is left to do.
[[nodiscard]] std::vector<Line> expectedTrace(const Texts& texts);

/// How the lines of an operation differ from those expected, in words; empty where they do not.
[[nodiscard]] std::string differenceOf(const std::vector<std::string>& lines, const std::vector<Line>& expected);

/// What is read of things that have numbers, from 1.
template <typename Lines> [[nodiscard]] std::string upTo(int last, const Lines& lines) {
    std::string all;
    for (int i = 1; i <= last; ++i) {
        all += lines(i);
    }
    return all;
}

/// The calls of a question's Prepare and those of its check, each line ending with a line feed. Raise
/// std::out_of_range where nothing is known of the question.
///@{
[[nodiscard]] std::string prepareOf(std::int32_t question);
[[nodiscard]] std::string checkOf(std::int32_t question);
[[nodiscard]] std::string checkOf(const Texts& texts);
///@}

/// Slides of the presentation when it is checked.
[[nodiscard]] std::size_t slidesOf(std::int32_t question);

/// What a check of every question reads of a presentation with so many slides.
[[nodiscard]] std::string marksRead(std::size_t slides);

} // namespace trials::trace
