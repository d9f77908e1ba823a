#pragma once

#include "automation/observe/Observer.h"

#include <map>
#include <string>
#include <vector>

namespace trials::trace {

/// A call to PowerPoint, so that it can be made again.
struct RecordedCall {
    std::size_t target; ///< the call that has handed the object out, from 1; 0 is the application
    std::u16string className;
    std::u16string member;
    automation::Access access;
    std::vector<automation::Value> arguments;
};

/// Records the calls to PowerPoint from one moment on.
class CallRecord final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override;

    std::vector<RecordedCall> calls;

private:
    std::map<const automation::Object*, std::size_t> givers_; ///< by the object that one has handed out last
};

} // namespace trials::trace
