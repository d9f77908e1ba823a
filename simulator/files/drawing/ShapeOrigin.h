#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/records/Record.h"

namespace simulator::drawing {

/// What a file says of a shape.
class ShapeOrigin final : public Origin {
public:
    OriginPtr document;     ///< which document's fonts, pictures and masters it refers to
    records::Record record; ///< of a group, that of the group as a shape
    std::shared_ptr<const Shape> asRead;
    std::int32_t group = 0; ///< id of the group around it, 0 where there is none
    /// The place in the slide's outline where its text stands; nothing for a text in the drawing.
    std::optional<std::uint32_t> outline;
    std::vector<records::Record> outlineText;
};

/// The origin of a shape in a document; null where it comes from elsewhere.
[[nodiscard]] const ShapeOrigin* originOf(const Shape& shape, const Origin* document) noexcept;

/// True where a shape, its place and its items apart, is what it was.
[[nodiscard]] bool isUnchanged(const Shape& shape, const Shape& asRead);

} // namespace simulator::drawing
