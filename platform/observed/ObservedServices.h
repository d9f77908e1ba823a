#pragma once

#include "automation/Unmoved.h"
#include "automation/observe/Observer.h"
#include "platform/Services.h"

#include <memory>

namespace platform {

/// Services with an observer around every call, and around every automation object that they hand out. Where the
/// observer raises, the call fails as the system's own would: with its error, or with the result that says so.
class ObservedServices : automation::Unmoved {
public:
    /// `inner` must outlive this object.
    ObservedServices(const Services& inner, const automation::ObserverPtr& observer);
    ~ObservedServices();

    [[nodiscard]] const Services& services() const noexcept;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace platform
