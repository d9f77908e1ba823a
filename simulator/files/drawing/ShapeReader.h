#pragma once

#include "simulator/files/drawing/Anchor.h"
#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/drawing/PropertyTable.h"
#include "simulator/files/drawing/ShapeText.h"

#include <map>
#include <set>

namespace simulator::drawing {

/// What a placeholder of a master slide says for those that follow it.
struct MasterShape {
    explicit MasterShape(const records::Record& shape);

    PropertyTable properties;
    std::optional<Edges> edges;
};
/// By their numbers.
using MasterShapes = std::map<std::uint32_t, MasterShape>;

/// What the shapes of one slide are read against; what it refers to must outlive the reading.
struct SlideContext {
    text::TextContext text;
    const MasterShapes& masters;
    const PropertyTable& defaults;
    const DrawingIds& ids;
    const std::vector<std::vector<records::Record>>& outline; ///< the slide's texts that stand apart
    OriginPtr document;
    SheetKind sheet = SheetKind::Slide;
};

/// Reads the shapes of a slide, or of another sheet.
class ShapeReader {
public:
    explicit ShapeReader(const SlideContext& context) noexcept
        : context_(context), texts_(context.text, context.outline, context.sheet) {}

    /// The shapes of a drawing, from back to front. Raises DamagedPresentation.
    [[nodiscard]] std::vector<ShapePtr> read(const records::Record& drawing);
    /// The background of a drawing; null where it has none.
    [[nodiscard]] ShapePtr readBackground(const records::Record& drawing);

private:
    [[nodiscard]] std::vector<ShapePtr> members(const records::Record& group, const Mapping& mapping,
                                                std::int32_t groupId);
    [[nodiscard]] ShapePtr group(const records::Record& record, const Mapping& mapping, std::int32_t groupId);
    [[nodiscard]] ShapePtr single(const records::Record& record, const Mapping& mapping, std::int32_t groupId);
    [[nodiscard]] const MasterShape* masterOf(const PropertyTable& properties) const;
    void readIdentity(const records::Record& record, const Looks& looks, Shape& shape);
    [[nodiscard]] std::int32_t idFor(std::uint32_t number);

    const SlideContext& context_;
    ShapeTexts texts_;
    std::set<std::int32_t> taken_; ///< ids
};

} // namespace simulator::drawing
