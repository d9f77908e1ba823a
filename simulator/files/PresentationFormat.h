#pragma once

#include "automation/Unmoved.h"
#include "simulator/document/Presentation.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace simulator {

/// The bytes of a file are not what the format says they are; `what` says why, for a maintainer.
class DamagedPresentation : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How a presentation is written to a file: the whole document, without its path, its name and whether it was saved.
class PresentationFormat : automation::Unmoved {
public:
    virtual ~PresentationFormat() = default;

    /// The presentation that the bytes of a file hold. Raises DamagedPresentation.
    [[nodiscard]] virtual PresentationPtr load(std::string_view bytes) const = 0;
    /// The bytes of a file that holds a presentation.
    [[nodiscard]] virtual std::string save(const Presentation& presentation) const = 0;
};

} // namespace simulator
