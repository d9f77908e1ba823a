#pragma once

#include "host/reason/Trail.h"
#include "host/reason/Ways.h"
#include "host/run/Witness.h"

namespace host::reason {

/// Adds to what the host reads what it means, by the contract of the question, and why it is read, out of what the
/// module has read during the check. It knows no question: it takes what was read last, and from before what the
/// meaning speaks of.
class Explainer final : public Witness {
public:
    /// `contract` must outlive this object. What passes through the observer of a world can be explained; in a world
    /// without one only what a verdict means. Calls pass through the other observer, too.
    explicit Explainer(const language::Contract& contract, automation::ObserverPtr other = nullptr)
        : contract_(contract), delivered_(valuesStated(contract.delivered)),
          trail_(std::make_shared<Trail>(std::move(other))) {}

    [[nodiscard]] automation::ObserverPtr observer() const noexcept { return trail_; }

    void calling(HostCall call) override;
    void explain(Reading& reading) override;

private:
    const language::Contract& contract_;
    std::map<std::string, automation::Value> delivered_;
    std::shared_ptr<Trail> trail_;
    std::u16string before_; ///< the letter of the check before, of the same preparation
};

} // namespace host::reason
