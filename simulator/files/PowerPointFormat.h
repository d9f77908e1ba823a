#pragma once

#include "simulator/files/PresentationFormat.h"

namespace simulator {

/// Presentations as PowerPoint 97 to 2003 keeps them: binary documents in compound files.
class PowerPointFormat final : public PresentationFormat {
public:
    [[nodiscard]] PresentationPtr load(std::string_view bytes) const override;
    [[nodiscard]] std::string save(const Presentation& presentation) const override;
};

} // namespace simulator
