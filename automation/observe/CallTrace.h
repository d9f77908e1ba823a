#pragma once

#include "automation/observe/Observer.h"

#include <chrono>
#include <functional>
#include <string>

namespace automation {

/// One call as it went.
struct TracedCall {
    Border border;
    std::u16string call;    ///< as a macro would state it
    std::u16string outcome; ///< the result, or the error
    bool failed;
    std::chrono::nanoseconds time;
};

/// Reports every call with its time and outcome, in the order in which the calls end.
class CallTrace final : public Observer {
public:
    using Sink = std::function<void(const TracedCall&)>;

    explicit CallTrace(Sink sink);

    Value around(const Crossing& crossing, const Next& next) override;

private:
    Sink sink_;
};

} // namespace automation
