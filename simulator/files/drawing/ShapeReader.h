#pragma once

#include "simulator/files/drawing/Anchor.h"
#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/drawing/PropertyTable.h"
#include "simulator/files/drawing/ShapeOrigin.h"
#include "simulator/files/text/TextRecords.h"

#include <map>
#include <set>

namespace simulator::drawing {

/// The properties of the placeholders of master slides, by their numbers.
using MasterShapes = std::map<std::uint32_t, records::Record>;

/// What the shapes of one slide are read against; what it refers to must outlive the reading.
struct SlideContext {
    text::TextContext text;
    const MasterShapes& masters;
    const PropertyTable& defaults;
    const DrawingIds& ids;
    const std::vector<std::vector<records::Record>>& outline; ///< the slide's texts that stand apart
    OriginPtr document;
};

/// Reads the shapes of a slide.
class ShapeReader {
public:
    explicit ShapeReader(const SlideContext& context) noexcept : context_(context) {}

    /// The shapes of a drawing, from back to front. Raises DamagedPresentation.
    [[nodiscard]] std::vector<ShapePtr> read(const records::Record& drawing);

private:
    [[nodiscard]] std::vector<ShapePtr> members(const records::Record& group, const Mapping& mapping,
                                                std::int32_t groupId);
    [[nodiscard]] ShapePtr group(const records::Record& record, const Mapping& mapping, std::int32_t groupId);
    [[nodiscard]] ShapePtr single(const records::Record& record, const Mapping& mapping, std::int32_t groupId);
    void readIdentity(const records::Record& record, const Looks& looks, Shape& shape);
    [[nodiscard]] std::int32_t idFor(std::uint32_t number);
    void readText(const records::Record& record, const Looks& looks, Shape& shape, ShapeOrigin& origin) const;

    const SlideContext& context_;
    std::set<std::int32_t> taken_;
};

/// A shape's properties, those of all its records as one table.
[[nodiscard]] PropertyTable propertiesOf(const records::Record& shape);

} // namespace simulator::drawing
