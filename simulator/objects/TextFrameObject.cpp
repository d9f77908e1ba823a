#include "simulator/objects/TextFrameObject.h"

#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/TriState.h"

#include <limits>

namespace simulator {

namespace {

constexpr Span everything{0, std::numeric_limits<std::size_t>::max()};
constexpr float widest = 1584; ///< points

} // namespace

TextFrameObject::TextFrameObject(ProcessPtr process, const ShapePtr& shape)
    : PowerPointObject(std::move(process)), part_(shape, everything) {}

const automation::MemberTable& TextFrameObject::members() const {
    using automation::method;
    using automation::property;
    using This = TextFrameObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::hasText>(u"HasText"),
        property<&This::textRange>(u"TextRange"),
        method<&This::deleteText>(u"DeleteText"),
        property<&This::autoSize, &This::setAutoSize>(u"AutoSize"),
        property<&This::wordWrap, &This::setWordWrap>(u"WordWrap"),
        property<&This::margin<&TextLayout::marginLeft>, &This::setMargin<&TextLayout::marginLeft>>(u"MarginLeft"),
        property<&This::margin<&TextLayout::marginTop>, &This::setMargin<&TextLayout::marginTop>>(u"MarginTop"),
        property<&This::margin<&TextLayout::marginRight>, &This::setMargin<&TextLayout::marginRight>>(u"MarginRight"),
        property<&This::margin<&TextLayout::marginBottom>, &This::setMargin<&TextLayout::marginBottom>>(
            u"MarginBottom"),
        property<&This::orientation, &This::setOrientation>(u"Orientation"),
        property<&This::horizontalAnchor, &This::setHorizontalAnchor>(u"HorizontalAnchor"),
        property<&This::verticalAnchor, &This::setVerticalAnchor>(u"VerticalAnchor"),
    });
    return table;
}

MsoTriState TextFrameObject::hasText() const {
    return triState(part_.read([](const TextStory&, Span span) { return span.length != 0; }));
}

std::shared_ptr<TextRangeObject> TextFrameObject::textRange() const {
    return std::make_shared<TextRangeObject>(process(),
                                             part_.at(part_.read([](const TextStory&, Span span) { return span; })));
}

void TextFrameObject::deleteText() {
    part_.edit([](TextStory& story, Span span) { story.replace(span, {}); });
}

PpAutoSize TextFrameObject::autoSize() const {
    return layout().autoSize;
}

void TextFrameObject::setAutoSize(PpAutoSize autoSize) {
    errors::demandWithin(autoSize, ppAutoSizeNone, ppAutoSizeShapeToFitText, u"TextFrame.AutoSize");
    part_.edit([autoSize](TextStory& story, Span) { story.layout.autoSize = autoSize; });
}

MsoTriState TextFrameObject::wordWrap() const {
    return triState(layout().wordWrap);
}

void TextFrameObject::setWordWrap(MsoTriState wraps) {
    part_.edit([wraps](TextStory& story, Span) { story.layout.wordWrap = wraps != msoFalse; });
}

void TextFrameObject::changeMargin(float TextLayout::*margin, float points) {
    errors::demandWithin(points, 0.0F, widest, u"TextFrame.Margin");
    part_.edit([margin, points](TextStory& story, Span) { story.layout.*margin = points; });
}

MsoTextOrientation TextFrameObject::orientation() const {
    return layout().orientation;
}

void TextFrameObject::setOrientation(MsoTextOrientation orientation) {
    errors::demandWithin(orientation, msoTextOrientationHorizontal, msoTextOrientationHorizontalRotatedFarEast,
                         u"TextFrame.Orientation");
    part_.edit([orientation](TextStory& story, Span) { story.layout.orientation = orientation; });
}

MsoHorizontalAnchor TextFrameObject::horizontalAnchor() const {
    return layout().centered ? msoAnchorCenter : msoAnchorNone;
}

void TextFrameObject::setHorizontalAnchor(MsoHorizontalAnchor anchor) {
    errors::demandWithin(anchor, msoAnchorNone, msoAnchorCenter, u"TextFrame.HorizontalAnchor");
    part_.edit([anchor](TextStory& story, Span) { story.layout.centered = anchor == msoAnchorCenter; });
}

MsoVerticalAnchor TextFrameObject::verticalAnchor() const {
    return layout().anchor;
}

void TextFrameObject::setVerticalAnchor(MsoVerticalAnchor anchor) {
    errors::demandWithin(anchor, msoAnchorTop, msoAnchorBottomBaseLine, u"TextFrame.VerticalAnchor");
    part_.edit([anchor](TextStory& story, Span) { story.layout.anchor = anchor; });
}

automation::ObjectPtr TextFrameObject::owner() const {
    return std::make_shared<ShapeObject>(process(), part_.shape());
}

TextLayout TextFrameObject::layout() const {
    return part_.read([](const TextStory& story, Span) { return story.layout; });
}

} // namespace simulator
