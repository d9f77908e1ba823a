#pragma once

#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/drawing/ShapeOrigin.h"
#include "simulator/files/text/FontTable.h"

#include <map>

namespace simulator::drawing {

/// Writes the shapes of a slide, or of another sheet. What a shape was read from is kept where the shape has not
/// changed.
class ShapeWriter {
public:
    /// Ids must have numbers for all shapes; both must outlive this object.
    ShapeWriter(const DrawingIds& ids, text::FontTable& fonts, const Origin* document, SheetKind sheet) noexcept
        : ids_(ids), fonts_(fonts), document_(document), sheet_(sheet) {}

    /// The records of shapes, from back to front.
    [[nodiscard]] std::vector<records::Record> write(const std::vector<ShapePtr>& shapes);
    /// The texts that stand in the slide's outline, in its order; they are there once the shapes are written.
    [[nodiscard]] const std::vector<std::vector<records::Record>>& outline() const noexcept { return outline_; }

private:
    [[nodiscard]] records::Record shape(const ShapePtr& shape, bool placesAreNew);
    [[nodiscard]] records::Record own(const Shape& shape, bool placesAreNew);
    [[nodiscard]] records::Record patched(const Shape& shape, const ShapeOrigin& origin, bool isChild,
                                          bool placesAreNew);
    /// A shape as if it came from no file.
    [[nodiscard]] records::Record fresh(const Shape& shape, std::uint32_t number, bool isChild);
    void patchText(records::Record& record, const Shape& shape, const ShapeOrigin& origin);
    void placeOutline(const std::vector<ShapePtr>& shapes);

    const DrawingIds& ids_;
    text::FontTable& fonts_;
    const Origin* document_;
    SheetKind sheet_;
    std::map<const Shape*, std::uint32_t> outlinePlaces_;
    std::vector<std::vector<records::Record>> outline_;
};

} // namespace simulator::drawing
