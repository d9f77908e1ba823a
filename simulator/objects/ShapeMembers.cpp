#include "simulator/objects/ShapeMembers.h"

#include "simulator/document/Connecting.h"
#include "simulator/document/Grouping.h"
#include "simulator/document/Stacking.h"
#include "simulator/objects/ConnectorFormatObject.h"
#include "simulator/objects/FillFormatObject.h"
#include "simulator/objects/GroupShapesObject.h"
#include "simulator/objects/LineFormatObject.h"
#include "simulator/objects/MasterObject.h"
#include "simulator/objects/PlaceholderFormatObject.h"
#include "simulator/objects/ShadowFormatObject.h"
#include "simulator/objects/ShapeCopies.h"
#include "simulator/objects/ShapeNodesObject.h"
#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapeRangeObject.h"
#include "simulator/objects/ShapeSelecting.h"
#include "simulator/objects/TableObject.h"
#include "simulator/objects/TagsObject.h"
#include "simulator/objects/TextEffectFormatObject.h"
#include "simulator/objects/TextFrameObject.h"
#include "simulator/objects/ThreeDFormatObject.h"
#include "simulator/objects/TriState.h"

namespace simulator {

const automation::MemberTable& ShapeMembers::sharedMembers() {
    using automation::method;
    using automation::property;
    using This = ShapeMembers;
    static const automation::MemberTable table = geometryMembers().with({
        method<&This::apply>(u"Apply"),
        method<&This::erase>(u"Delete"),
        method<&This::pickUp>(u"PickUp"),
        method<&This::ungroup>(u"Ungroup"),
        method<&This::zOrder>(u"ZOrder", u"ZOrderCmd"),
        property<&This::autoShapeType, &This::setAutoShapeType>(u"AutoShapeType"),
        property<&This::fill>(u"Fill"),
        property<&This::groupItems>(u"GroupItems"),
        property<&This::line>(u"Line"),
        property<&This::name, &This::setName>(u"Name"),
        property<&This::shapeNodes>(u"Nodes"),
        property<&This::shadow>(u"Shadow"),
        property<&This::textEffect>(u"TextEffect"),
        property<&This::threeD>(u"ThreeD"),
        property<&This::type>(u"Type"),
        property<&This::visible, &This::setVisible>(u"Visible"),
        property<&This::zOrderPosition>(u"ZOrderPosition"),
        property<&This::placeholderFormat>(u"PlaceholderFormat"),
        property<&This::hasTable>(u"HasTable"),
        property<&This::table>(u"Table"),
        property<&This::tags>(u"Tags"),
        method<&This::cut>(u"Cut"),
        method<&This::copy>(u"Copy"),
        method<&This::select>(u"Select", u"Replace"),
        method<&This::duplicate>(u"Duplicate"),
        property<&This::textFrame>(u"TextFrame"),
        property<&This::hasTextFrame>(u"HasTextFrame"),
        property<&This::alternativeText, &This::setAlternativeText>(u"AlternativeText"),
        property<&This::parentGroup>(u"ParentGroup"),
        property<&This::child>(u"Child"),
        property<&This::id>(u"Id"),
        property<&This::connector>(u"Connector"),
        property<&This::connectorFormat>(u"ConnectorFormat"),
        property<&This::connectionSiteCount>(u"ConnectionSiteCount"),
        method<&This::rerouteConnections>(u"RerouteConnections"),
    });
    return table;
}

automation::ObjectPtr ShapeMembers::owner() const {
    return objectOf(process(), nodes().first()->slide);
}

std::u16string ShapeMembers::name() const {
    return nodes().only()->name;
}

void ShapeMembers::setName(const std::u16string& name) {
    const ShapePtr shape = nodes().only();
    const bool keepsName = automation::equalIgnoringCase(shape->name, name);
    if (!keepsName && simulator::alive(shape->slide)->isNameTaken(name)) {
        errors::invalidRequest(u"Shape.Name", u"Une autre forme de la diapositive porte ce nom.");
    }
    nodes().change([&name](Shape& renamed) { renamed.name = name; });
}

std::int32_t ShapeMembers::id() const {
    return nodes().only()->id;
}

MsoShapeType ShapeMembers::type() const {
    return read(MsoShapeType{-2}, &Shape::type);
}

std::int32_t ShapeMembers::autoShapeType() const {
    return read(msoShapeMixed, &Shape::autoShapeType);
}

void ShapeMembers::setAutoShapeType(std::int32_t type) {
    errors::demandWithin(type, msoShapeRectangle, lastAutoShape, u"Shape.AutoShapeType");
    nodes().change([type](Shape& shape) {
        if (shape.type != msoAutoShape) {
            errors::invalidRequest(u"Shape.AutoShapeType", u"La forme n'est pas une forme automatique.");
        }
        shape.autoShapeType = type;
    });
}

std::u16string ShapeMembers::alternativeText() const {
    return read(std::u16string(), &Shape::alternativeText);
}

void ShapeMembers::setAlternativeText(const std::u16string& text) {
    nodes().change([&text](Shape& shape) { shape.alternativeText = text; });
}

MsoTriState ShapeMembers::visible() const {
    return readState(&Shape::visible);
}

void ShapeMembers::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.visible = visible != msoFalse; });
}

void ShapeMembers::zOrder(MsoZOrderCmd command) {
    errors::demandWithin(command, msoBringToFront, msoSendBackward, u"Shape.ZOrder");
    const SlidePtr slide = slideOfOutermost(u"Shape.ZOrder");
    restack(*slide, nodes().all(), command);
    markChanged(*slide);
}

std::int32_t ShapeMembers::zOrderPosition() const {
    const ShapePtr shape = nodes().only();
    const ShapePtr group = shape->group();
    const std::vector<ShapePtr>& around = group ? group->items() : simulator::alive(shape->slide)->shapes();
    return static_cast<std::int32_t>(std::find(around.begin(), around.end(), shape) - around.begin()) + 1;
}

std::shared_ptr<TagsObject> ShapeMembers::tags() const {
    return std::make_shared<TagsObject>(process(), nodes().only());
}

std::shared_ptr<FillFormatObject> ShapeMembers::fill() const {
    return std::make_shared<FillFormatObject>(process(), leavesOf(nodes()), nodes());
}

std::shared_ptr<LineFormatObject> ShapeMembers::line() const {
    return std::make_shared<LineFormatObject>(process(), outlinesOf(nodes()), nodes());
}

std::shared_ptr<ShadowFormatObject> ShapeMembers::shadow() const {
    return std::make_shared<ShadowFormatObject>(process(), leavesOf(nodes()), nodes());
}

std::shared_ptr<ThreeDFormatObject> ShapeMembers::threeD() const {
    return std::make_shared<ThreeDFormatObject>(process(), leavesOf(nodes()), nodes());
}

std::shared_ptr<TextEffectFormatObject> ShapeMembers::textEffect() const {
    return std::make_shared<TextEffectFormatObject>(process(), nodes());
}

MsoTriState ShapeMembers::hasTextFrame() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.text.has_value()); });
}

std::shared_ptr<TextFrameObject> ShapeMembers::textFrame() const {
    const ShapePtr shape = nodes().only();
    if (!shape->text) {
        errors::invalidRequest(u"Shape.TextFrame", u"La forme ne peut pas contenir de texte.");
    }
    return std::make_shared<TextFrameObject>(process(), shape);
}

std::shared_ptr<PlaceholderFormatObject> ShapeMembers::placeholderFormat() const {
    const ShapePtr shape = nodes().only();
    if (!shape->placeholder) {
        errors::invalidRequest(u"Shape.PlaceholderFormat", u"La forme n'est pas un espace réservé.");
    }
    return std::make_shared<PlaceholderFormatObject>(process(), shape);
}

std::shared_ptr<ShapeNodesObject> ShapeMembers::shapeNodes() const {
    const ShapePtr shape = nodes().only();
    if (shape->type != msoFreeform) {
        errors::invalidRequest(u"Shape.Nodes", u"La forme n'est pas une forme libre.");
    }
    return std::make_shared<ShapeNodesObject>(process(), shape);
}

MsoTriState ShapeMembers::connector() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.connector.has_value()); });
}

std::shared_ptr<ConnectorFormatObject> ShapeMembers::connectorFormat() const {
    const ShapePtr shape = nodes().only();
    if (!shape->connector) {
        errors::invalidRequest(u"Shape.ConnectorFormat", u"La forme n'est pas un connecteur.");
    }
    return std::make_shared<ConnectorFormatObject>(process(), shape);
}

std::int32_t ShapeMembers::connectionSiteCount() const {
    return connectionSites(*nodes().only());
}

void ShapeMembers::rerouteConnections() {
    (void)connectorFormat();
    nodes().change([](Shape& shape) { reroute(shape); });
}

std::shared_ptr<GroupShapesObject> ShapeMembers::groupItems() const {
    const ShapePtr shape = nodes().only();
    if (shape->type != msoGroup) {
        errors::invalidRequest(u"Shape.GroupItems", u"Ce membre n'est accessible que pour un groupe.");
    }
    return std::make_shared<GroupShapesObject>(process(), shape);
}

std::shared_ptr<ShapeObject> ShapeMembers::parentGroup() const {
    ShapePtr group = nodes().only()->group();
    while (process()->settings().isAsDocumented && group && group->group()) {
        group = group->group();
    }
    if (!group || group->type == msoTable) {
        errors::invalidRequest(u"Shape.ParentGroup", u"La forme ne fait pas partie d'un groupe.");
    }
    return std::make_shared<ShapeObject>(process(), group);
}

MsoTriState ShapeMembers::child() const {
    return nodes().common(msoTriStateMixed,
                          [](const Shape& shape) { return triState(shape.group() != nullptr && !shape.isInTable()); });
}

std::shared_ptr<ShapeRangeObject> ShapeMembers::ungroup() {
    const SlidePtr slide = slideOfOutermost(u"Shape.Ungroup");
    std::vector<ShapePtr> items;
    for (const ShapePtr& shape : nodes().all()) {
        if (shape->type == msoGroup) {
            const std::vector<ShapePtr> released = simulator::ungroup(*slide, shape);
            items.insert(items.end(), released.begin(), released.end());
        }
    }
    if (items.empty()) {
        errors::invalidRequest(u"Shape.Ungroup", u"La forme n'est pas un groupe.");
    }
    markChanged(*slide);
    return rangeOf(items);
}

MsoTriState ShapeMembers::hasTable() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.type == msoTable); });
}

std::shared_ptr<TableObject> ShapeMembers::table() const {
    const ShapePtr shape = nodes().only();
    if (shape->type != msoTable) {
        errors::invalidRequest(u"Shape.Table", u"La forme n'est pas un tableau.");
    }
    return std::make_shared<TableObject>(process(), shape);
}

void ShapeMembers::refuseCells(std::u16string_view member) const {
    refuse(member, u"Une cellule ne peut être supprimée ni copiée sans son tableau.",
           [](const Shape& shape) { return shape.isInTable(); });
}

void ShapeMembers::erase() {
    refuseCells(u"Shape.Delete");
    for (const ShapePtr& shape : nodes().all()) {
        markChanged(*shape);
        simulator::erase(shape);
    }
}

std::shared_ptr<ShapeRangeObject> ShapeMembers::duplicate() {
    refuseCells(u"Shape.Duplicate");
    const std::vector<ShapePtr> copies = simulator::duplicate(nodes().all());
    markChanged(*nodes().first());
    return rangeOf(copies);
}

void ShapeMembers::copy() const {
    refuseCells(u"Shape.Copy");
    copyTo(process()->clipboard(), nodes().all());
}

void ShapeMembers::cut() {
    copy();
    erase();
}

void ShapeMembers::select(std::optional<MsoTriState> replace) const {
    selectShapes(*process(), nodes().all(), replace.value_or(msoTrue) != msoFalse);
}

void ShapeMembers::pickUp() const {
    process()->clipboard().format = nodes().only()->clone();
}

void ShapeMembers::apply() {
    const ShapePtr model = process()->clipboard().format;
    if (!model) {
        errors::invalidRequest(u"Shape.Apply", u"Aucune mise en forme n'a été prélevée.");
    }
    leavesOf(nodes()).change([&model](Shape& shape) {
        shape.fill = model->fill;
        shape.shadow = model->shadow;
        shape.threeD = model->threeD;
    });
    outlinesOf(nodes()).change([&model](Shape& shape) { shape.line = model->line; });
}

std::shared_ptr<ShapeRangeObject> ShapeMembers::rangeOf(const std::vector<ShapePtr>& shapes) const {
    return std::make_shared<ShapeRangeObject>(process(), shapes);
}

SlidePtr ShapeMembers::slideOfOutermost(std::u16string_view member) const {
    for (std::size_t place = 0; place < nodes().size(); ++place) {
        if (nodes().at(place)->group()) {
            errors::invalidRequest(member, u"La forme fait partie d'un groupe.");
        }
    }
    return simulator::alive(nodes().first()->slide);
}

} // namespace simulator
