#include "automation/observe/CallTrace.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <utility>

namespace automation {

CallTrace::CallTrace(Sink sink) : sink_(std::move(sink)) {}

Value CallTrace::around(const Crossing& crossing, const Next& next) {
    using Clock = std::chrono::steady_clock;
    TracedCall traced{crossing.border, crossing.display(), {}, false, {}};
    const Clock::time_point start = Clock::now();
    try {
        Value result = next();
        traced.time = Clock::now() - start;
        traced.outcome = result.display();
        sink_(traced);
        return result;
    } catch (const Error& error) {
        traced.time = Clock::now() - start;
        traced.failed = true;
        traced.outcome = u"error " + fromUtf8(error.what());
        sink_(traced);
        throw;
    }
}

} // namespace automation
