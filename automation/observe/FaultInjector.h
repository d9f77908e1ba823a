#pragma once

#include "automation/Error.h"
#include "automation/observe/Observer.h"

#include <cstddef>
#include <utility>

namespace automation {

/// Makes the n-th call fail, once or from there on: an automation call raises the error given, a call of the system
/// fails in its own way.
class FaultInjector final : public Observer {
public:
    enum class Lasting : bool { Once, FromThereOn };

    /// `position` counts from 1; 0 lets every call pass.
    FaultInjector(std::size_t position, Lasting lasting, Error error)
        : position_(position), lasting_(lasting), error_(std::move(error)) {}

    Value around(const Crossing& /*crossing*/, const Next& next) override {
        ++calls_;
        const bool reached = position_ != 0 && calls_ >= position_;
        if (reached && (calls_ == position_ || lasting_ == Lasting::FromThereOn)) {
            throw error_;
        }
        return next();
    }

    /// Calls seen so far, failed ones included.
    [[nodiscard]] std::size_t calls() const noexcept { return calls_; }

private:
    std::size_t position_;
    Lasting lasting_;
    Error error_;
    std::size_t calls_ = 0;
};

} // namespace automation
