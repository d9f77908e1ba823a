#pragma once

#include "host/run/Witness.h"
#include "tests/trials/Host.h"
#include "tests/trials/cost/PrepareSpan.h"

#include <string>
#include <vector>

namespace trials::torture {

/// The steps of the module; which one a call belongs to says what the host must get when it fails.
enum class Stage : std::uint8_t {
    Looking,    ///< is PowerPoint's window visible?
    Obtaining,  ///< the PowerPoint that the host brings is taken, or one is started
    Saving,     ///< what is the learner's is read: bars and folders
    Dialogs,    ///< dialogs are closed
    Closing,    ///< the settings kept from one question to the next are read
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

/// A call that left the module when nothing failed.
struct Call {
    automation::Border border = automation::Border::Automation;
    Stage stage = Stage::Looking;
    std::u16string member{};
    std::u16string text{}; ///< as a macro would state it
    std::u16string key{};  ///< of the registry: how an error names what could not be opened
};

/// Writes the calls of an operation down as they pass.
class RouteRecorder final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override;

    /// The first calls, so many as the operation has made, with their stages.
    [[nodiscard]] std::vector<Call> route(HostCall operation, std::size_t calls) const;

private:
    std::vector<Call> calls_;
    std::vector<bool> isOfPrepare_;
    cost::PrepareSpan prepare_;
};

} // namespace trials::torture
