#pragma once

#include "host/run/Snapshot.h"
#include "host/run/Witness.h"

#include <set>

namespace host {

/// Watches over what is the learner's: no call of the module may touch a presentation that it has not opened, but in
/// the host's folder, and when all is over the learner's folder settings are as they were and no working file is left.
class Guard final : public Witness {
public:
    /// `world` must outlive this object.
    explicit Guard(World& world) : world_(world) {}

    void calling(HostCall call) override;
    void called(HostCall call, const automation::Error* error) override;

    /// What went wrong, once the question is closed.
    [[nodiscard]] std::vector<std::string> findings();

private:
    [[nodiscard]] Snapshot look() const;
    [[nodiscard]] bool isOfTheExercise(const std::u16string& fullName) const;
    void comparePresentations(HostCall call, const Snapshot& after);

    World& world_;
    std::optional<Snapshot> before_;                            ///< the call that is on its way
    std::optional<std::array<std::u16string, 4>> firstFolders_; ///< before the first InitQuestion
    std::set<std::u16string> workingFiles_;
    std::set<std::u16string> workingPresentations_; ///< by their full names
    std::vector<std::string> findings_;
};

} // namespace host
