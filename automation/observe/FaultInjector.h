#pragma once

#include "automation/Error.h"
#include "automation/observe/Observer.h"

#include <cstddef>
#include <utility>

namespace automation {

/// Makes the n-th call fail, once or from there on: an automation call raises the error given, a call of the system
/// fails in its own way. From there on, borders that are spared let their calls pass.
class FaultInjector final : public Observer {
public:
    enum class Lasting : bool { Once, FromThereOn };

    using Spares = std::function<bool(Border)>;

    /// `position` counts from 1; 0 lets every call pass.
    FaultInjector(std::size_t position, Lasting lasting, Error error, Spares spares = nullptr)
        : position_(position), lasting_(lasting), error_(std::move(error)), spares_(std::move(spares)) {}

    Value around(const Crossing& crossing, const Next& next) override {
        ++calls_;
        const bool reached = position_ != 0 && calls_ >= position_;
        if (reached && (calls_ == position_ || lasting_ == Lasting::FromThereOn) &&
            !(spares_ && spares_(crossing.border))) {
            hasStruck_ = true;
            throw error_;
        }
        return next();
    }

    /// Counts anew, up to another position.
    void rearm(std::size_t position) noexcept {
        position_ = position;
        calls_ = 0;
        hasStruck_ = false;
    }

    /// Calls seen so far, failed ones included.
    [[nodiscard]] std::size_t calls() const noexcept { return calls_; }
    /// True once a call has been made to fail.
    [[nodiscard]] bool hasStruck() const noexcept { return hasStruck_; }

private:
    std::size_t position_;
    Lasting lasting_;
    Error error_;
    Spares spares_;
    std::size_t calls_ = 0;
    bool hasStruck_ = false;
};

} // namespace automation
