#pragma once

#include "simulator/objects/ShapeGeometry.h"

namespace simulator {

class ConnectorFormatObject;
class FillFormatObject;
class GroupShapesObject;
class LineFormatObject;
class ShapeNodesObject;
class PlaceholderFormatObject;
class ShadowFormatObject;
class ShapeObject;
class ShapeRangeObject;
class TableObject;
class TagsObject;
class TextEffectFormatObject;
class TextFrameObject;
class ThreeDFormatObject;

/// The members that Shape and ShapeRange have in common. A property of several shapes reads as their common value, or
/// as mixed; writing it writes all. Lengths are points, kept to an eighth of a point. Every member raises
/// `errors::gone` once a shape has been deleted.
class ShapeMembers : public ShapeGeometry {
public:
    using ShapeGeometry::ShapeGeometry;

    /// The slide or the master.
    [[nodiscard]] automation::ObjectPtr owner() const override;

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
    [[nodiscard]] std::shared_ptr<TableObject> table() const;
    [[nodiscard]] MsoTriState hasTable() const;
    [[nodiscard]] std::shared_ptr<ShapeNodesObject> shapeNodes() const;
    [[nodiscard]] MsoTriState connector() const;
    [[nodiscard]] std::shared_ptr<ConnectorFormatObject> connectorFormat() const;
    [[nodiscard]] std::int32_t connectionSiteCount() const;
    /// Raises an invalid request for a shape that is no connector.
    void rerouteConnections();
    [[nodiscard]] std::shared_ptr<GroupShapesObject> groupItems() const;
    [[nodiscard]] std::shared_ptr<ShapeObject> parentGroup() const;
    [[nodiscard]] MsoTriState child() const;

    /// Raises an invalid request where there is no group; answers with the items.
    std::shared_ptr<ShapeRangeObject> ungroup();
    /// This and the three that follow raise an invalid request for cells of a table.
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
    void refuseCells(std::u16string_view member) const;
};

} // namespace simulator
