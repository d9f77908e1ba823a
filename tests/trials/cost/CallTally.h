#pragma once

#include "tests/trials/cost/PrepareSpan.h"

#include <set>

namespace trials::cost {

/// Counts the calls that pass, those of a question's Prepare apart, and the names that they state.
class CallTally final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override {
        const bool isAutomation = crossing.border == automation::Border::Automation;
        ++calls;
        prepareCalls += prepare_.contains(crossing) ? 1U : 0U;
        automationCalls += isAutomation ? 1U : 0U;
        if (isAutomation) {
            names.insert(std::u16string(crossing.target).append(u".").append(crossing.member));
        }
        return next();
    }

    std::size_t calls = 0;
    std::size_t prepareCalls = 0;
    std::size_t automationCalls = 0;
    std::set<std::u16string> names; ///< members of PowerPoint's, each looked up once in a session through COM

private:
    PrepareSpan prepare_;
};

} // namespace trials::cost
