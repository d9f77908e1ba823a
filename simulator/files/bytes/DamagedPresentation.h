#pragma once

#include <stdexcept>

namespace simulator {

/// The bytes of a file are not what PowerPoint's format says they are; `what` says why, for a maintainer.
class DamagedPresentation : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads something that a presentation can do without: what was read before the damage holds. False where there is
/// some.
template <typename Read> bool asFarAsSound(const Read& read) {
    try {
        read();
        return true;
    } catch (const DamagedPresentation&) {
        return false;
    }
}

} // namespace simulator
