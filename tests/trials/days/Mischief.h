#pragma once

#include "host/run/Witness.h"
#include "tests/trials/days/Day.h"

namespace trials::days {

/// Has the troubles of an attempt strike in the host's calls that they are meant for.
class Mischief final : public Witness, public automation::Observer {
public:
    /// In a world whose PowerPoint is in a process of its own, that one misbehaves; in one of this process the calls
    /// that leave the module do, which must pass through this object.
    explicit Mischief(bool isRemote) : isRemote_(isRemote) {}

    /// The host's next calls are those of an attempt. `world` must outlive these.
    void begin(World& world, std::vector<Trouble> troubles);
    void calling(HostCall call) override;
    void called(HostCall call, const automation::Error* error) override;
    automation::Value around(const automation::Crossing& crossing, const Next& next) override;

    /// Troubles that have struck so far.
    [[nodiscard]] std::size_t struck() const noexcept { return struck_; }
    /// Command bars that could not be read before they were arranged: nobody can put them back.
    [[nodiscard]] std::size_t barsUnread() const noexcept { return barsUnread_; }

private:
    bool isRemote_;
    World* world_ = nullptr;
    std::vector<Trouble> troubles_;
    std::size_t hostCalls_ = 0;
    const Trouble* armed_ = nullptr;
    torture::Strike strike_;
    bool isPreparing_ = false; ///< InitQuestion is on its way
    bool isUnread_ = false;    ///< and may not have been able to read a bar
    std::size_t struck_ = 0;
    std::size_t barsUnread_ = 0;
};

} // namespace trials::days
