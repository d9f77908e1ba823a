#pragma once

#include "simulator/objects/NodeSet.h"

#include <functional>

namespace simulator {

/// The members of Shape and ShapeRange that concern the place and size of shapes, and what they have in common. Lengths
/// are points, kept to an eighth of a point.
class ShapeGeometry : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    template <float Frame::*part> [[nodiscard]] float length() const { return readLength(part); }
    template <float Frame::*edge> void moveTo(float points) { writeEdge(edge, points); }
    /// Raises an invalid request for a negative size. The other side follows where the aspect ratio is locked.
    template <float Frame::*side> void resizeTo(float points) { writeSide(side, points); }
    /// Degrees, 0 to 360.
    [[nodiscard]] float rotation() const;
    void setRotation(float degrees);
    [[nodiscard]] MsoTriState lockAspectRatio() const;
    void setLockAspectRatio(MsoTriState locked);
    [[nodiscard]] MsoTriState horizontalFlip() const;
    [[nodiscard]] MsoTriState verticalFlip() const;

    template <float Frame::*edge> void moveBy(float points) { shiftEdge(edge, points); }
    void incrementRotation(float degrees);
    /// Relative to the present size; to the original one is an invalid request, since it is not known.
    template <float Frame::*side>
    void scale(float factor, MsoTriState relativeToOriginalSize, std::optional<MsoScaleFrom> from) {
        scaleSide(side, factor, relativeToOriginalSize, from);
    }
    void flip(MsoFlipCmd command);

protected:
    [[nodiscard]] static const automation::MemberTable& geometryMembers();

    /// What a property of the shapes is: their common value, or `whenMixed`.
    template <typename Value> [[nodiscard]] Value read(Value whenMixed, Value Shape::*part) const {
        return nodes().common(whenMixed, [part](const Shape& shape) { return shape.*part; });
    }
    [[nodiscard]] MsoTriState readState(bool Shape::*part) const;
    /// Raises an invalid request where one of the shapes is such.
    template <typename Condition>
    void refuse(std::u16string_view member, std::u16string_view reason, const Condition& isSuch) const {
        for (std::size_t place = 0; place < nodes().size(); ++place) {
            if (isSuch(*nodes().at(place))) {
                errors::invalidRequest(member, reason);
            }
        }
    }

private:
    /// Changes where the shapes stand; raises an invalid request for cells of a table.
    void place(const std::function<void(Shape&)>& change);
    /// The same, and for tables.
    void turn(const std::function<void(Shape&)>& change);
    [[nodiscard]] float readLength(float Frame::*part) const;
    void writeEdge(float Frame::*edge, float points);
    void writeSide(float Frame::*side, float points);
    void shiftEdge(float Frame::*edge, float points);
    void scaleSide(float Frame::*side, float factor, MsoTriState relativeToOriginalSize,
                   std::optional<MsoScaleFrom> from);
};

} // namespace simulator
