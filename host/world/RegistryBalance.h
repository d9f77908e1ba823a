#pragma once

#include "automation/observe/Observer.h"
#include "platform/Registry.h"

namespace host {

/// Counts registry keys opened and not closed again.
class RegistryBalance final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override {
        automation::Value outcome = next();
        if (crossing.member == u"close") {
            --open_;
        } else if (crossing.member == u"open" || crossing.member == u"create") {
            open_ += outcome.to<platform::Registry::Status>() == platform::Registry::success ? 1 : 0;
        }
        return outcome;
    }

    [[nodiscard]] int open() const noexcept { return open_; }

private:
    int open_ = 0;
};

} // namespace host
