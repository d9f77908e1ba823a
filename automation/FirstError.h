#pragma once

#include <exception>

namespace automation {

/// Takes steps that do not depend on each other: each of them is taken, and the error of the first that fails is raised
/// in the end.
class FirstError {
public:
    template <typename Step> void attempt(const Step& step) noexcept {
        try {
            step();
        } catch (...) {
            if (!error_) {
                error_ = std::current_exception();
            }
        }
    }
    void raise() const {
        if (error_) {
            std::rethrow_exception(error_);
        }
    }

private:
    std::exception_ptr error_;
};

} // namespace automation
