#pragma once

#include <stdexcept>

namespace simulator {

/// The bytes of a file are not what PowerPoint's format says they are; `what` says why, for a maintainer.
class DamagedPresentation : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace simulator
