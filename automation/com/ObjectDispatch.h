#pragma once

#include "automation/com/PublishedDispatch.h"

namespace automation::com {

/// A published object that is reached late-bound only.
class ObjectDispatch final : public PublishedDispatch<IDispatch> {
public:
    using PublishedDispatch::PublishedDispatch;
};

} // namespace automation::com
