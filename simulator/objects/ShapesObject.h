#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class FreeformBuilderObject;
class PlaceholdersObject;
class ShapeObject;
class ShapeRangeObject;

/// Shapes: the shapes of a slide, a master or a notes page, from back to front. New shapes come in front, without tags.
/// Lengths are points.
class ShapesObject final : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// The slide or the master.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(node()->shapes().size()); }
    /// By place from 1, or by name.
    [[nodiscard]] std::shared_ptr<ShapeObject> item(const automation::Value& index) const;
    /// The shape that an index or a name stands for, those of an array of them, or all shapes.
    [[nodiscard]] std::shared_ptr<ShapeRangeObject> range(const std::optional<automation::Value>& index) const;

    /// An AutoShape of a type from 1 (msoShapeRectangle) to 137.
    std::shared_ptr<ShapeObject> addShape(std::int32_t type, float left, float top, float width, float height);
    std::shared_ptr<ShapeObject> addTextbox(MsoTextOrientation orientation, float left, float top, float width,
                                            float height);
    /// A WordArt object, as large as its text needs.
    std::shared_ptr<ShapeObject> addTextEffect(std::int32_t presetTextEffect, const std::u16string& text,
                                               const std::u16string& fontName, float fontSize, MsoTriState fontBold,
                                               MsoTriState fontItalic, float left, float top);
    /// A table of 1 to 25 rows and columns; a size left out is two thirds of the slide's width, and as high as the
    /// cells need.
    std::shared_ptr<ShapeObject> addTable(std::int32_t numRows, std::int32_t numColumns, std::optional<float> left,
                                          std::optional<float> top, std::optional<float> width,
                                          std::optional<float> height);
    std::shared_ptr<ShapeObject> addLine(float beginX, float beginY, float endX, float endY);
    /// A connector of a type from 1 (msoConnectorStraight) to 3, which holds on to no shape yet.
    std::shared_ptr<ShapeObject> addConnector(MsoConnectorType type, float beginX, float beginY, float endX,
                                              float endY);
    /// Takes an array of points, each an array of two coordinates: corners with two control points between each two.
    std::shared_ptr<ShapeObject> addCurve(const automation::Value& safeArrayOfPoints);
    /// Takes an array of points, each an array of two coordinates; a first point repeated at the end closes the line.
    std::shared_ptr<ShapeObject> addPolyline(const automation::Value& safeArrayOfPoints);
    /// The file is not read: a size left out is that of a small picture.
    std::shared_ptr<ShapeObject> addPicture(const std::u16string& fileName, MsoTriState linkToFile,
                                            MsoTriState saveWithDocument, float left, float top,
                                            std::optional<float> width, std::optional<float> height);
    /// Puts a placeholder that was deleted back; raises an invalid request where none of this type is missing.
    std::shared_ptr<ShapeObject> addPlaceholder(PpPlaceholderType type, std::optional<float> left,
                                                std::optional<float> top, std::optional<float> width,
                                                std::optional<float> height);
    /// Puts the title back; raises an invalid request where the slide has one, or its layout has none.
    std::shared_ptr<ShapeObject> addTitle();
    [[nodiscard]] std::shared_ptr<FreeformBuilderObject> buildFreeform(MsoEditingType editingType, float x1,
                                                                       float y1) const;

    void selectAll() const;
    [[nodiscard]] MsoTriState hasTitle() const;
    /// Raises an invalid request where the slide has none.
    [[nodiscard]] std::shared_ptr<ShapeObject> title() const;
    [[nodiscard]] std::shared_ptr<PlaceholdersObject> placeholders() const;
    /// Raises an invalid request where the clipboard holds no shape and no text.
    std::shared_ptr<ShapeRangeObject> paste();

private:
    [[nodiscard]] std::shared_ptr<ShapeObject> objectOf(const ShapePtr& shape) const;
    std::shared_ptr<ShapeObject> add(const ShapePtr& shape);
};

} // namespace simulator
