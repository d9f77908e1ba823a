#include "simulator/objects/ShapesObject.h"

#include "simulator/document/NewShape.h"
#include "simulator/document/SlideLayout.h"
#include "simulator/document/TextFit.h"
#include "simulator/objects/FreeformBuilderObject.h"
#include "simulator/objects/MasterObject.h"
#include "simulator/objects/PlaceholdersObject.h"
#include "simulator/objects/ShapeCopies.h"
#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapeRangeObject.h"
#include "simulator/objects/ShapeSelecting.h"
#include "simulator/objects/TriState.h"

namespace simulator {

namespace {

constexpr std::int32_t lastTextEffect = 29;

/// Sides of a picture whose size is left out, in points.
constexpr float pictureSide = 96;

Frame frameOf(float left, float top, float width, float height, std::u16string_view member) {
    if (width < 0 || height < 0) {
        errors::invalidValue(member);
    }
    return {left, top, width, height};
}

/// A length that a caller gave; PowerPoint takes -1 for one left out.
float given(std::optional<float> length, float otherwise) {
    return length && *length != -1.0F ? *length : otherwise;
}

std::vector<Node> pointsOf(const automation::Value& safeArrayOfPoints) {
    std::vector<Node> points;
    for (const automation::Value& element : safeArrayOfPoints.to<automation::Array>()) {
        const auto coordinates = element.to<automation::Array>();
        if (coordinates.size() != 2) {
            automation::raise(automation::RunTimeError::TypeMismatch);
        }
        points.push_back({coordinates[0].to<float>(), coordinates[1].to<float>()});
    }
    return points;
}

ShapePtr titleOf(const Slide& slide) {
    return findPlaceholder(slide, ppPlaceholderTitle);
}

} // namespace

const automation::MemberTable& ShapesObject::members() const {
    using automation::method;
    using automation::property;
    using This = ShapesObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
        method<&This::addConnector>(u"AddConnector", u"Type BeginX BeginY EndX EndY"),
        method<&This::addCurve>(u"AddCurve", u"SafeArrayOfPoints"),
        method<&This::addLine>(u"AddLine", u"BeginX BeginY EndX EndY"),
        method<&This::addPicture>(u"AddPicture", u"FileName LinkToFile SaveWithDocument Left Top Width Height"),
        method<&This::addPolyline>(u"AddPolyline", u"SafeArrayOfPoints"),
        method<&This::addShape>(u"AddShape", u"Type Left Top Width Height"),
        method<&This::addTable>(u"AddTable", u"NumRows NumColumns Left Top Width Height"),
        method<&This::addTextEffect>(u"AddTextEffect",
                                     u"PresetTextEffect Text FontName FontSize FontBold FontItalic Left Top"),
        method<&This::addTextbox>(u"AddTextbox", u"Orientation Left Top Width Height"),
        method<&This::buildFreeform>(u"BuildFreeform", u"EditingType X1 Y1"),
        method<&This::selectAll>(u"SelectAll"),
        method<&This::range>(u"Range", u"Index"),
        property<&This::hasTitle>(u"HasTitle"),
        method<&This::addTitle>(u"AddTitle"),
        property<&This::title>(u"Title"),
        property<&This::placeholders>(u"Placeholders"),
        method<&This::addPlaceholder>(u"AddPlaceholder", u"Type Left Top Width Height"),
        method<&This::paste>(u"Paste"),
    });
    return table;
}

automation::ObjectPtr ShapesObject::owner() const {
    return simulator::objectOf(process(), node());
}

std::shared_ptr<ShapeObject> ShapesObject::item(const automation::Value& index) const {
    return objectOf(elementAt(node()->shapes(), index, u"Shapes.Item"));
}

std::shared_ptr<ShapeRangeObject> ShapesObject::range(const std::optional<automation::Value>& index) const {
    return std::make_shared<ShapeRangeObject>(process(), elementsAt(node()->shapes(), index, u"Shapes.Range"));
}

std::shared_ptr<ShapeObject> ShapesObject::addShape(std::int32_t type, float left, float top, float width,
                                                    float height) {
    errors::demandWithin(type, msoShapeRectangle, lastAutoShape, u"Shapes.AddShape");
    return add(newShape::autoShape(type, frameOf(left, top, width, height, u"Shapes.AddShape")));
}

std::shared_ptr<ShapeObject> ShapesObject::addTextbox(MsoTextOrientation orientation, float left, float top,
                                                      float width, float height) {
    errors::demandWithin(orientation, msoTextOrientationHorizontal, msoTextOrientationHorizontalRotatedFarEast,
                         u"Shapes.AddTextbox");
    const ShapePtr shape = newShape::textBox(frameOf(left, top, width, height, u"Shapes.AddTextbox"));
    shape->text->layout.orientation = orientation;
    fitToText(*shape);
    return add(shape);
}

std::shared_ptr<ShapeObject> ShapesObject::addTextEffect(std::int32_t presetTextEffect, const std::u16string& text,
                                                         const std::u16string& fontName, float fontSize,
                                                         MsoTriState fontBold, MsoTriState fontItalic, float left,
                                                         float top) {
    errors::demandWithin(presetTextEffect, 0, lastTextEffect, u"Shapes.AddTextEffect");
    errors::demandWithin(fontSize, 1.0F, 4000.0F, u"Shapes.AddTextEffect");
    const TextEffect effect{text, fontName, fontSize, fontBold != msoFalse, fontItalic != msoFalse, presetTextEffect};
    return add(newShape::wordArt(effect, left, top));
}

std::shared_ptr<ShapeObject> ShapesObject::addTable(std::int32_t numRows, std::int32_t numColumns,
                                                    std::optional<float> left, std::optional<float> top,
                                                    std::optional<float> width, std::optional<float> height) {
    constexpr std::int32_t most = 25;
    errors::demandWithin(numRows, 1, most, u"Shapes.AddTable");
    errors::demandWithin(numColumns, 1, most, u"Shapes.AddTable");
    const PresentationPtr presentation = simulator::alive(node()->presentation);
    const float usual = presentation->slideWidth * 2 / 3;
    const Frame frame =
        frameOf(left.value_or((presentation->slideWidth - usual) / 2), top.value_or(presentation->slideHeight / 3),
                width.value_or(usual), height.value_or(0), u"Shapes.AddTable");
    return add(newShape::table(static_cast<std::size_t>(numRows), static_cast<std::size_t>(numColumns), frame));
}

std::shared_ptr<ShapeObject> ShapesObject::addLine(float beginX, float beginY, float endX, float endY) {
    return add(newShape::line({beginX, beginY}, {endX, endY}));
}

std::shared_ptr<ShapeObject> ShapesObject::addConnector(MsoConnectorType type, float beginX, float beginY, float endX,
                                                        float endY) {
    errors::demandWithin(type, msoConnectorStraight, msoConnectorCurve, u"Shapes.AddConnector");
    return add(newShape::connector(type, {beginX, beginY}, {endX, endY}));
}

std::shared_ptr<ShapeObject> ShapesObject::addCurve(const automation::Value& safeArrayOfPoints) {
    std::vector<Node> points = pointsOf(safeArrayOfPoints);
    if (points.size() < 4 || points.size() % 3 != 1) {
        errors::invalidRequest(u"Shapes.AddCurve", u"Il faut trois points par courbe, et un point de départ.");
    }
    for (std::size_t place = 0; place < points.size(); ++place) {
        points[place].curve = place % 3 != 0;
    }
    return add(newShape::freeform(std::move(points)));
}

std::shared_ptr<ShapeObject> ShapesObject::addPolyline(const automation::Value& safeArrayOfPoints) {
    std::vector<Node> points = pointsOf(safeArrayOfPoints);
    if (points.size() < 2) {
        errors::invalidRequest(u"Shapes.AddPolyline", u"Il faut au moins deux points.");
    }
    return add(newShape::freeform(std::move(points)));
}

std::shared_ptr<ShapeObject> ShapesObject::addPicture(const std::u16string& fileName, MsoTriState /*linkToFile*/,
                                                      MsoTriState /*saveWithDocument*/, float left, float top,
                                                      std::optional<float> width, std::optional<float> height) {
    const Frame frame = frameOf(left, top, given(width, pictureSide), given(height, pictureSide), u"Shapes.AddPicture");
    return add(newShape::picture(fileName, frame));
}

std::shared_ptr<ShapeObject> ShapesObject::addPlaceholder(PpPlaceholderType type, std::optional<float> left,
                                                          std::optional<float> top, std::optional<float> width,
                                                          std::optional<float> height) {
    const SlidePtr slide = node();
    const ShapePtr shape = restorePlaceholder(*slide, type);
    if (!shape) {
        errors::invalidRequest(u"Shapes.AddPlaceholder", u"Aucun espace réservé de ce type n'a été supprimé.");
    }
    const Frame frame = shape->frame();
    shape->setFrame(
        {given(left, frame.left), given(top, frame.top), given(width, frame.width), given(height, frame.height)});
    markChanged(*slide);
    return objectOf(shape);
}

std::shared_ptr<ShapeObject> ShapesObject::addTitle() {
    const SlidePtr slide = node();
    ShapePtr shape = restorePlaceholder(*slide, ppPlaceholderTitle);
    if (!shape) {
        shape = restorePlaceholder(*slide, ppPlaceholderCenterTitle);
    }
    if (!shape) {
        errors::invalidRequest(u"Shapes.AddTitle", u"La diapositive n'a pas de titre à rétablir.");
    }
    markChanged(*slide);
    return objectOf(shape);
}

std::shared_ptr<FreeformBuilderObject> ShapesObject::buildFreeform(MsoEditingType editingType, float x1,
                                                                   float y1) const {
    errors::demandWithin(editingType, msoEditingAuto, msoEditingCorner, u"Shapes.BuildFreeform");
    return std::make_shared<FreeformBuilderObject>(process(), node(), x1, y1);
}

void ShapesObject::selectAll() const {
    selectShapes(*process(), node()->shapes(), true);
}

MsoTriState ShapesObject::hasTitle() const {
    return triState(titleOf(*node()) != nullptr);
}

std::shared_ptr<ShapeObject> ShapesObject::title() const {
    const ShapePtr shape = titleOf(*node());
    if (!shape) {
        errors::invalidRequest(u"Shapes.Title", u"La diapositive n'a pas de titre.");
    }
    return objectOf(shape);
}

std::shared_ptr<PlaceholdersObject> ShapesObject::placeholders() const {
    return std::make_shared<PlaceholdersObject>(process(), node());
}

std::shared_ptr<ShapeRangeObject> ShapesObject::paste() {
    const SlidePtr slide = node();
    const std::vector<ShapePtr> pasted = simulator::paste(process()->clipboard(), *slide);
    if (pasted.empty()) {
        errors::invalidRequest(u"Shapes.Paste", u"Le Presse-papiers est vide ou ne contient pas de forme.");
    }
    markChanged(*slide);
    return std::make_shared<ShapeRangeObject>(process(), pasted);
}

std::shared_ptr<ShapeObject> ShapesObject::objectOf(const ShapePtr& shape) const {
    return std::make_shared<ShapeObject>(process(), shape);
}

std::shared_ptr<ShapeObject> ShapesObject::add(const ShapePtr& shape) {
    nodes().change([&shape](Slide& slide) { slide.add(shape); });
    return objectOf(shape);
}

} // namespace simulator
