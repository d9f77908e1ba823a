#include "tests/trials/trace/CallRecord.h"

namespace trials::trace {

automation::Value CallRecord::around(const automation::Crossing& crossing, const Next& next) {
    if (crossing.border != automation::Border::Automation) {
        return next();
    }
    const auto giver = givers_.find(crossing.object);
    calls.push_back({giver == givers_.end() ? 0 : giver->second,
                     std::u16string(crossing.target),
                     std::u16string(crossing.member),
                     crossing.access,
                     {crossing.arguments.begin(), crossing.arguments.end()}});
    const std::size_t place = calls.size();
    automation::Value result = next();
    if (result.isObject()) {
        givers_[result.as<automation::ObjectPtr>().get()] = place;
    }
    return result;
}

} // namespace trials::trace
