#pragma once

#include "automation/Unmoved.h"
#include "automation/observe/CallTrace.h"

#include <iosfwd>
#include <string_view>

namespace host {

/// Where the telling of an exercise goes, piece by piece, in UTF-8.
class Story : automation::Unmoved {
public:
    virtual ~Story() = default;

    /// Something begins: a call of the host, the learner's moves.
    virtual void chapter(std::string_view title) = 0;
    /// What is seen to have happened.
    virtual void sentence(std::string_view text) = 0;
    /// A statement of the scenario, with its line in the file.
    virtual void statement(std::size_t line, std::string_view text) = 0;
    /// A call that left the module.
    virtual void call(const automation::TracedCall& traced) = 0;
};

} // namespace host
