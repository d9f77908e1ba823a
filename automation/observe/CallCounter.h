#pragma once

#include "automation/observe/Observer.h"

#include <cstddef>

namespace automation {

/// Counts the calls that pass.
class CallCounter final : public Observer {
public:
    Value around(const Crossing& /*crossing*/, const Next& next) override {
        ++count_;
        return next();
    }

    [[nodiscard]] std::size_t count() const noexcept { return count_; }
    void reset() noexcept { count_ = 0; }

private:
    std::size_t count_ = 0;
};

} // namespace automation
