#pragma once

#include "host/command/Story.h"
#include "host/run/Snapshot.h"
#include "host/run/Witness.h"

namespace host {

/// Tells an exercise in plain words from what is seen of its world: before and after every call of the host it looks at
/// the world, and says what has changed.
class Telling final : public Witness {
public:
    /// Both must outlive this object.
    Telling(World& world, Story& story) : world_(world), story_(story) {}

    void delivered(const std::vector<std::u16string>& names) override;
    void calling(HostCall call) override;
    void called(HostCall call, const automation::Error* error) override;
    void judged(const Reading& reading) override;
    void performing(const language::Statement& statement) override;

private:
    void tellPowerPoint(const Snapshot& before, const Snapshot& after);
    void tellClosed(const Snapshot& before, const Snapshot& after);
    void tellFiles(const Snapshot& before, const Snapshot& after);
    void tellOpened(const Snapshot& before, const Snapshot& after);
    void tellMarks(const OpenPresentation& open);
    void tellFolders(const Snapshot& before, const Snapshot& after);

    World& world_;
    Story& story_;
    std::optional<Snapshot> before_;                               ///< the call that is on its way
    std::optional<std::array<std::u16string, 4>> learnersFolders_; ///< before the first call
    bool isAmongMoves_ = false;                                    ///< the chapter of the learner's moves is open
};

} // namespace host
