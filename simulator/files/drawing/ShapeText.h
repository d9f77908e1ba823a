#pragma once

#include "simulator/files/drawing/PropertyTable.h"
#include "simulator/files/drawing/ShapeOrigin.h"
#include "simulator/files/text/TextRecords.h"

#include <set>

namespace simulator::drawing {

/// Reads the texts of the shapes of one slide; what it refers to must outlive it.
class ShapeTexts {
public:
    /// `outline` are the slide's texts that stand apart from its shapes.
    ShapeTexts(const text::TextContext& context, const std::vector<std::vector<records::Record>>& outline,
               SheetKind sheet) noexcept
        : context_(context), outline_(outline), sheet_(sheet) {}

    /// Gives a shape its text, and the origin the outline text that it refers to. Raises DamagedPresentation, also
    /// where another shape has that one.
    void read(const records::Record& record, const Looks& looks, Shape& shape, ShapeOrigin& origin);

private:
    const text::TextContext& context_;
    const std::vector<std::vector<records::Record>>& outline_;
    SheetKind sheet_;
    std::set<std::uint32_t> taken_; ///< places of outline texts
};

/// True where a shape of a kind can hold text.
[[nodiscard]] bool holdsText(const Shape& shape, std::uint16_t kind) noexcept;

} // namespace simulator::drawing
