#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class ApplicationObject;
class FillFormatObject;
class GroupShapesObject;
class LineFormatObject;
class NodesObject;
class PlaceholderFormatObject;
class ShadowFormatObject;
class ShapeObject;
class ShapeRangeObject;
class SlideObject;
class TagsObject;
class TextEffectFormatObject;
class TextFrameObject;
class ThreeDFormatObject;

/// The members that Shape and ShapeRange have in common. A property of several shapes reads as their common value, or
/// as mixed; writing it writes all. Lengths are points, kept to an eighth of a point. Every member raises
/// `errors::gone` once a shape has been deleted.
class ShapeMembers : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] std::shared_ptr<ApplicationObject> application() const;
    /// The slide.
    [[nodiscard]] std::shared_ptr<SlideObject> parent() const;

    [[nodiscard]] std::u16string name() const;
    /// Raises an invalid request for a name that another shape of the slide bears.
    void setName(const std::u16string& name);
    [[nodiscard]] std::int32_t id() const;
    [[nodiscard]] MsoShapeType type() const;
    /// Mixed (-2) for what is no AutoShape.
    [[nodiscard]] std::int32_t autoShapeType() const;
    /// 1 (msoShapeRectangle) to 137; raises an invalid request for what is no AutoShape.
    void setAutoShapeType(std::int32_t type);
    [[nodiscard]] std::u16string alternativeText() const;
    void setAlternativeText(const std::u16string& text);
    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);

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

    /// Raises an invalid request for an item of a group.
    void zOrder(MsoZOrderCmd command);
    /// Place from 1 (the back) among the shapes of the slide, or among the items of the group.
    [[nodiscard]] std::int32_t zOrderPosition() const;

    [[nodiscard]] std::shared_ptr<TagsObject> tags() const;
    [[nodiscard]] std::shared_ptr<FillFormatObject> fill() const;
    [[nodiscard]] std::shared_ptr<LineFormatObject> line() const;
    [[nodiscard]] std::shared_ptr<ShadowFormatObject> shadow() const;
    [[nodiscard]] std::shared_ptr<ThreeDFormatObject> threeD() const;
    [[nodiscard]] std::shared_ptr<TextEffectFormatObject> textEffect() const;
    [[nodiscard]] MsoTriState hasTextFrame() const;
    /// Raises an invalid request for a shape that cannot hold text, as the members below do for shapes of other kinds.
    [[nodiscard]] std::shared_ptr<TextFrameObject> textFrame() const;
    [[nodiscard]] std::shared_ptr<PlaceholderFormatObject> placeholderFormat() const;
    [[nodiscard]] std::shared_ptr<NodesObject> shapeNodes() const;
    [[nodiscard]] std::shared_ptr<GroupShapesObject> groupItems() const;
    [[nodiscard]] std::shared_ptr<ShapeObject> parentGroup() const;
    [[nodiscard]] MsoTriState child() const;

    /// Raises an invalid request where there is no group; answers with the items.
    std::shared_ptr<ShapeRangeObject> ungroup();
    void erase();
    std::shared_ptr<ShapeRangeObject> duplicate();
    void copy() const;
    void cut();
    /// Raises an invalid request unless the slide is shown.
    void select(std::optional<MsoTriState> replace) const;
    /// Remembers the format of the shape, for `apply` to give it to others.
    void pickUp() const;
    /// Raises an invalid request where no format was picked up.
    void apply();

protected:
    [[nodiscard]] static const automation::MemberTable& sharedMembers();
    [[nodiscard]] std::shared_ptr<ShapeRangeObject> rangeOf(const std::vector<ShapePtr>& shapes) const;
    /// The slide of the shapes, which must stand directly on it: an invalid request is raised for items of groups.
    [[nodiscard]] SlidePtr slideOfOutermost(std::u16string_view member) const;

private:
    template <typename Value> [[nodiscard]] Value read(Value mixed, Value Shape::*part) const;
    [[nodiscard]] MsoTriState readState(bool Shape::*part) const;
    [[nodiscard]] float readLength(float Frame::*part) const;
    void writeEdge(float Frame::*edge, float points);
    void writeSide(float Frame::*side, float points);
    void shiftEdge(float Frame::*edge, float points);
    void scaleSide(float Frame::*side, float factor, MsoTriState relativeToOriginalSize,
                   std::optional<MsoScaleFrom> from);
};

} // namespace simulator
