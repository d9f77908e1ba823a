#include "simulator/objects/SelectionObject.h"

#include "automation/LateBound.h"
#include "simulator/objects/DocumentWindowObject.h"
#include "simulator/objects/ShapeRangeObject.h"
#include "simulator/objects/SlideRangeObject.h"
#include "simulator/objects/TextRangeObject.h"
#include "simulator/objects/TriState.h"

#include <algorithm>

namespace simulator {

using automation::LateBound;

namespace {

[[noreturn]] void nothingSelected(std::u16string_view member) {
    errors::invalidRequest(member, u"Aucun élément approprié n'est sélectionné.");
}

ShapePtr outermost(ShapePtr shape) {
    while (const ShapePtr group = shape->group()) {
        shape = group;
    }
    return shape;
}

std::vector<ShapePtr> groupItems(const Selection& selection) {
    std::vector<ShapePtr> items = selection.shapes();
    std::erase_if(items, [](const ShapePtr& shape) { return shape->group() == nullptr || shape->isInTable(); });
    return items;
}

} // namespace

const automation::MemberTable& SelectionObject::members() const {
    using automation::method;
    using automation::property;
    using This = SelectionObject;
    static const automation::MemberTable table = commonMembers().with({
        method<&This::cut>(u"Cut"),
        method<&This::copy>(u"Copy"),
        method<&This::remove>(u"Delete"),
        method<&This::unselect>(u"Unselect"),
        property<&This::type>(u"Type"),
        property<&This::slideRange>(u"SlideRange"),
        property<&This::shapeRange>(u"ShapeRange"),
        property<&This::textRange>(u"TextRange"),
        property<&This::childShapeRange>(u"ChildShapeRange"),
        property<&This::hasChildShapeRange>(u"HasChildShapeRange"),
    });
    return table;
}

std::shared_ptr<ShapeRangeObject> SelectionObject::shapeRange() const {
    std::vector<ShapePtr> whole;
    for (const ShapePtr& shape : simulator::alive(window_)->selection.shapes()) {
        if (ShapePtr outer = outermost(shape); std::find(whole.begin(), whole.end(), outer) == whole.end()) {
            whole.push_back(std::move(outer));
        }
    }
    if (whole.empty()) {
        nothingSelected(u"Selection.ShapeRange");
    }
    return std::make_shared<ShapeRangeObject>(process(), whole);
}

MsoTriState SelectionObject::hasChildShapeRange() const {
    return triState(!groupItems(simulator::alive(window_)->selection).empty());
}

std::shared_ptr<ShapeRangeObject> SelectionObject::childShapeRange() const {
    const std::vector<ShapePtr> items = groupItems(simulator::alive(window_)->selection);
    if (items.empty()) {
        nothingSelected(u"Selection.ChildShapeRange");
    }
    return std::make_shared<ShapeRangeObject>(process(), items);
}

std::shared_ptr<TextRangeObject> SelectionObject::textRange() const {
    const Selection& selection = simulator::alive(window_)->selection;
    if (selection.type() != ppSelectionText) {
        nothingSelected(u"Selection.TextRange");
    }
    return std::make_shared<TextRangeObject>(process(), TextPart(selection.shapes().front(), selection.text()));
}

std::shared_ptr<SlideRangeObject> SelectionObject::slideRange() const {
    const DocumentWindowPtr window = simulator::alive(window_);
    std::vector<SlidePtr> slides = window->selection.slides();
    if (slides.empty()) {
        if (const SlidePtr shown = window->shown()) {
            slides.push_back(shown);
        } else {
            nothingSelected(u"Selection.SlideRange");
        }
    }
    return std::make_shared<SlideRangeObject>(process(), slides);
}

automation::ObjectPtr SelectionObject::owner() const {
    return std::make_shared<DocumentWindowObject>(process(), window_);
}

void SelectionObject::remove() const {
    LateBound(selected()).call(u"Delete");
}

void SelectionObject::copy() const {
    LateBound(selected()).call(u"Copy");
}

void SelectionObject::cut() const {
    LateBound(selected()).call(u"Cut");
}

automation::ObjectPtr SelectionObject::selected() const {
    switch (type()) {
    case ppSelectionSlides: return slideRange();
    case ppSelectionShapes:
        if (hasChildShapeRange() != msoFalse) {
            return childShapeRange();
        }
        return shapeRange();
    case ppSelectionText: return textRange();
    case ppSelectionNone: break;
    }
    nothingSelected(u"Selection");
}

} // namespace simulator
