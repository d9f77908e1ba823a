#pragma once

#include "simulator/files/PresentationFormat.h"

namespace simulator {

/// Presentations as JSON: every value of the document under its own name.
class JsonPresentationFormat final : public PresentationFormat {
public:
    [[nodiscard]] PresentationPtr load(std::string_view bytes) const override;
    [[nodiscard]] std::string save(const Presentation& presentation) const override;
};

} // namespace simulator
