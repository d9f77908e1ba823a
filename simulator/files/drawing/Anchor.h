#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/records/Record.h"

namespace simulator::drawing {

/// Edges of a shape, in master units of the slide or in the coordinates of a group.
struct Edges {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// How the coordinates of a group lie on the slide; at first, the slide's own.
class Mapping {
public:
    Mapping() = default;
    /// `inner` are the group's coordinates, `outer` where they lie on the slide.
    Mapping(const Edges& inner, const Edges& outer) noexcept;

    [[nodiscard]] Edges onSlide(const Edges& edges) const noexcept;

private:
    double scaleX_ = 1;
    double scaleY_ = 1;
    double shiftX_ = 0;
    double shiftY_ = 0;
};

/// Where a shape's record says that it stands, on the slide; nothing where it does not say.
[[nodiscard]] std::optional<Edges> edgesOf(const records::Record& shape, const Mapping& mapping);
/// The coordinates of a group, from the record of the group as a shape.
[[nodiscard]] Edges coordinatesOf(const records::Record& shape);

[[nodiscard]] Edges edgesOf(const Frame& frame) noexcept;
/// The frame of a shape that stands between edges: a shape turned on its side lies there turned back.
[[nodiscard]] Frame frameOf(const Edges& edges, float rotation) noexcept;

/// A frame as the place of a shape on its slide, or in a group whose coordinates are the slide's.
[[nodiscard]] records::Record clientAnchor(const Frame& frame, float rotation);
[[nodiscard]] records::Record childAnchor(const Frame& frame, float rotation);
/// The coordinates of a group: those of the slide.
[[nodiscard]] records::Record groupCoordinates(const Frame& frame);

} // namespace simulator::drawing
