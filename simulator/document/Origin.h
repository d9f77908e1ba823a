#pragma once

#include "automation/Unmoved.h"

#include <memory>

namespace simulator {

/// What the file that something was read from says of it. Only the file's format knows what that is; it keeps here what
/// it does not understand, so that saving gives it back.
class Origin : automation::Unmoved {
public:
    virtual ~Origin() = default;
};

/// Nothing for what comes from no file. Copies share the origin.
using OriginPtr = std::shared_ptr<const Origin>;

} // namespace simulator
