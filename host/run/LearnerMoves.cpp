#include "host/run/LearnerMoves.h"

#include "host/world/Members.h"
#include "host/world/Refusal.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host {

using automation::LateBound;
using automation::ObjectPtr;

namespace {

constexpr std::int32_t yes = -1;
constexpr std::int32_t msoPlaceholder = 14;
constexpr std::int32_t msoEditingAuto = 0;
constexpr std::int32_t msoSegmentLine = 0;
constexpr std::int32_t msoSegmentCurve = 1;
constexpr std::int32_t ppLayoutText = 2;
constexpr std::int32_t ppSelectionText = 3;

constexpr std::int32_t plan = 6; ///< ppSaveAsRTF
/// The types of the dialog, as it lists them, with their numbers.
constexpr auto saveTypes = std::to_array<std::pair<std::u16string_view, std::int32_t>>(
    {{u"Présentation", 1}, {u"Modèle de conception", 5}, {u"Diaporama PowerPoint", 7}, {u"Plan/RTF", plan}});

std::int32_t number(const LateBound& object, std::u16string_view member) {
    return object.get(member).to<std::int32_t>();
}

float length(const LateBound& object, std::u16string_view member) {
    return object.get(member).to<float>();
}

/// PowerPoint selects what has been drawn.
ObjectPtr withSelected(ObjectPtr drawn) {
    LateBound(drawn).call(u"Select");
    return drawn;
}

LateBound rangeOf(const LateBound& shape) {
    return memberOf(memberOf(shape, u"TextFrame"), u"TextRange");
}

bool holdsText(const LateBound& shape) {
    return number(shape, u"HasTextFrame") != 0 && number(memberOf(shape, u"TextFrame"), u"HasText") != 0;
}

/// The Delete key on one shape.
void deleteShape(const LateBound& shape, const LateBound& shapes) {
    if (number(shape, u"Type") != msoPlaceholder || !holdsText(shape)) {
        shape.call(u"Delete");
        return;
    }
    const std::int32_t kind = number(memberOf(shape, u"PlaceholderFormat"), u"Type");
    const std::array frame{length(shape, u"Left"), length(shape, u"Top"), length(shape, u"Width"),
                           length(shape, u"Height")};
    shape.call(u"Delete");
    shapes.call(u"AddPlaceholder", kind, frame[0], frame[1], frame[2], frame[3]);
}

/// What AutoCorrect makes of a text that is typed: typographic apostrophes, and a capital at the start of a paragraph.
void typeCorrected(const LateBound& range, std::u16string text, bool startsParagraph) {
    constexpr char16_t typographic = u'\u2019';
    constexpr std::int32_t ppCaseUpper = 3;
    std::replace(text.begin(), text.end(), u'\'', typographic);
    range.put(u"Text", text);
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (place == 0 ? startsParagraph : text[place - 1] == u'\r') {
            LateBound(range.call(u"Characters", static_cast<std::int32_t>(place) + 1, 1).to<ObjectPtr>())
                .call(u"ChangeCase", ppCaseUpper);
        }
    }
}

void paintText(const LateBound& from, const LateBound& to) {
    const LateBound model = memberOf(from, u"Font");
    const LateBound font = memberOf(to, u"Font");
    for (const std::u16string_view property : {u"Name", u"Size", u"Bold", u"Italic", u"Underline"}) {
        font.put(property, model.get(property));
    }
    const LateBound color = memberOf(model, u"Color");
    const bool isOfScheme = number(color, u"SchemeColor") > 0;
    const std::u16string_view kind = isOfScheme ? u"SchemeColor" : u"RGB";
    memberOf(font, u"Color").put(kind, color.get(kind));
}

/// The nearest line of the grid.
float snapped(float place, float distance) {
    return std::round(place / distance) * distance;
}

} // namespace

LateBound LearnerMoves::application() const {
    ObjectPtr application = powerPoint_.application();
    if (!application) {
        refuse(u"PowerPoint does not run");
    }
    return LateBound(std::move(application));
}

LateBound LearnerMoves::presentation() const {
    return memberOf(application(), u"ActivePresentation");
}

LateBound LearnerMoves::selection() const {
    return memberOf(memberOf(application(), u"ActiveWindow"), u"Selection");
}

void LearnerMoves::pressDelete() const {
    const LateBound selected = selection();
    if (number(selected, u"Type") == ppSelectionText || number(selected, u"HasChildShapeRange") != 0) {
        selected.call(u"Delete");
        return;
    }
    const LateBound slide = memberOf(memberOf(memberOf(application(), u"ActiveWindow"), u"View"), u"Slide");
    const LateBound range = memberOf(selected, u"ShapeRange");
    std::vector<LateBound> shapes;
    forEachItem(range, [&](const LateBound& shape) { shapes.push_back(shape); });
    for (const LateBound& shape : shapes) {
        deleteShape(shape, memberOf(slide, u"Shapes"));
    }
}

float LearnerMoves::centimetres(float length) const {
    constexpr float eighthsInCentimetre = 226.7F; // what makes 2 and 11 cm 56.625 and 311.625 points
    constexpr float eighths = 8;
    return std::floor(length * eighthsInCentimetre) / eighths;
}

void LearnerMoves::drag(const ObjectPtr& shape, float right, float down) const {
    const LateBound dragged(shape);
    const Point to = placed({length(dragged, u"Left") + right, length(dragged, u"Top") + down});
    dragged.put(u"Left", to.x);
    dragged.put(u"Top", to.y);
}

LearnerMoves::Point LearnerMoves::placed(Point point) const {
    const LateBound deck = presentation();
    if (number(deck, u"SnapToGrid") == 0) {
        return point;
    }
    const float distance = length(deck, u"GridDistance");
    return {snapped(point.x, distance), snapped(point.y, distance)};
}

LearnerMoves::Point LearnerMoves::pointOf(const automation::Value& coordinates) {
    const auto both = coordinates.to<automation::Array>();
    if (both.size() != 2) {
        refuse(u"a point is an array of two places: Array(10, 20)", automation::RunTimeError::InvalidProcedureCall);
    }
    return {both[0].to<float>(), both[1].to<float>()};
}

LateBound LearnerMoves::shapes() const {
    return memberOf(memberOf(memberOf(memberOf(application(), u"ActiveWindow"), u"View"), u"Slide"), u"Shapes");
}

ObjectPtr LearnerMoves::drawLine(float beginX, float beginY, float endX, float endY) const {
    const Point begin = placed({beginX, beginY});
    const Point end = placed({endX, endY});
    return withSelected(shapes().call(u"AddLine", begin.x, begin.y, end.x, end.y).to<ObjectPtr>());
}

ObjectPtr LearnerMoves::drawFreeform(const automation::Array& points) const {
    return draw(points, msoSegmentLine);
}

ObjectPtr LearnerMoves::drawCurve(const automation::Array& points) const {
    return draw(points, msoSegmentCurve);
}

ObjectPtr LearnerMoves::draw(const automation::Array& points, std::int32_t segmentType) const {
    if (points.size() < 2) {
        refuse(u"at least two points are needed", automation::RunTimeError::InvalidProcedureCall);
    }
    const Point first = placed(pointOf(points.front()));
    const LateBound builder(shapes().call(u"BuildFreeform", msoEditingAuto, first.x, first.y).to<ObjectPtr>());
    for (std::size_t place = 1; place < points.size(); ++place) {
        const Point next = placed(pointOf(points[place]));
        const Point stop = place + 1 == points.size() && place > 1 && isNear(first, next) ? first : next;
        builder.call(u"AddNodes", segmentType, msoEditingAuto, stop.x, stop.y);
    }
    return withSelected(builder.call(u"ConvertToShape").to<ObjectPtr>());
}

LearnerMoves::Point LearnerMoves::pointAt(const LateBound& nodes, std::int32_t place) {
    const auto points = itemOf(nodes, place).get(u"Points").to<automation::Array>();
    return pointOf(points.empty() ? automation::Value() : points.front());
}

bool LearnerMoves::isNear(Point one, Point other) {
    constexpr float reach = 5; // points
    return std::abs(one.x - other.x) <= reach && std::abs(one.y - other.y) <= reach;
}

void LearnerMoves::dragPoint(const ObjectPtr& freeform, std::int32_t place, float right, float down) const {
    const LateBound nodes = memberOf(LateBound(freeform), u"Nodes");
    const std::int32_t last = countOf(nodes);
    const Point from = pointAt(nodes, place);
    const std::int32_t opposite = place == 1 ? last : 1;
    const bool isEnd = place == 1 || place == last;
    const bool wasClosed = isEnd && pointAt(nodes, opposite) == from;
    Point to = placed({from.x + right, from.y + down});
    if (isEnd && !wasClosed && isNear(to, pointAt(nodes, opposite))) {
        to = pointAt(nodes, opposite);
    }
    nodes.call(u"SetPosition", place, to.x, to.y);
    if (wasClosed) {
        nodes.call(u"SetPosition", opposite, to.x, to.y);
    }
}

void LearnerMoves::deletePoint(const ObjectPtr& freeform, std::int32_t place) const {
    const LateBound nodes = memberOf(LateBound(freeform), u"Nodes");
    const std::int32_t last = countOf(nodes);
    const bool wasClosed = (place == 1 || place == last) && pointAt(nodes, 1) == pointAt(nodes, last);
    nodes.call(u"Delete", wasClosed ? 1 : place);
    if (wasClosed) { // what was the second point is begin and end now
        const Point begin = pointAt(nodes, 1);
        nodes.call(u"SetPosition", countOf(nodes), begin.x, begin.y);
    }
}

void LearnerMoves::type(const std::u16string& text) const {
    const LateBound selected = selection();
    LateBound range;
    if (number(selected, u"Type") == ppSelectionText) {
        range = memberOf(selected, u"TextRange");
    } else {
        range = rangeOf(itemOf(memberOf(selected, u"ShapeRange"), 1)); // typing begins anew in a shape that is selected
    }
    const std::int32_t before = number(range, u"Start") - 1;
    const LateBound whole = rangeOf(itemOf(memberOf(selected, u"ShapeRange"), 1));
    const auto all = whole.get(u"Text").to<std::u16string>();
    const bool startsParagraph = before == 0 || all.at(static_cast<std::size_t>(before) - 1) == u'\r';
    typeCorrected(range, text, startsParagraph);
}

void LearnerMoves::correctSpelling(const std::u16string& wrong, const std::u16string& right) const {
    forEachItem(memberOf(presentation(), u"Slides"), [&](const LateBound& slide) {
        forEachItem(memberOf(slide, u"Shapes"), [&](const LateBound& shape) {
            std::int32_t after = 0;
            while (number(shape, u"HasTextFrame") != 0) {
                const auto changed = rangeOf(shape).call(u"Replace", wrong, right, after, yes, yes).to<ObjectPtr>();
                if (!changed) {
                    break;
                }
                after = number(LateBound(changed), u"Start") + number(LateBound(changed), u"Length") - 1;
            }
        });
    });
}

void LearnerMoves::chooseSynonym(const std::u16string& synonym) const {
    const LateBound word = LateBound(memberOf(selection(), u"TextRange").call(u"TrimText").to<ObjectPtr>());
    word.put(u"Text", synonym);
}

void LearnerMoves::paintFormat(const ObjectPtr& from, const ObjectPtr& to) const {
    try {
        LateBound(from).call(u"PickUp");
        LateBound(to).call(u"Apply");
    } catch (const automation::Error& error) {
        if (!error.is(automation::RunTimeError::MemberNotFound)) {
            throw;
        }
        paintText(LateBound(from), LateBound(to)); // a text, which has no such members
    }
}

void LearnerMoves::saveAs(const std::u16string& name, const std::u16string& type) const {
    const auto* const found =
        std::find_if(saveTypes.begin(), saveTypes.end(), [&type](const auto& entry) { return entry.first == type; });
    if (found == saveTypes.end()) {
        refuse(u"the list of types has Présentation, Modèle de conception, Diaporama PowerPoint and Plan/RTF",
               automation::RunTimeError::InvalidProcedureCall);
    }
    const LateBound deck = presentation();
    const bool hasFolder = name.find(u'\\') != std::u16string::npos;
    const auto folder = deck.get(u"Path").to<std::u16string>();
    deck.call(u"SaveAs", hasFolder || folder.empty() ? name : folder + u"\\" + name, found->second);
}

void LearnerMoves::insertOutline(const std::u16string& outline) const {
    const LateBound slides = memberOf(presentation(), u"Slides");
    LateBound body;
    for (std::size_t start = 0; start <= outline.size();) {
        const std::size_t end = std::min(outline.find(u'\r', start), outline.size());
        const std::u16string line = outline.substr(start, end - start);
        if (!line.starts_with(u'\t')) {
            const LateBound shapes =
                memberOf(LateBound(slides.call(u"Add", countOf(slides) + 1, ppLayoutText).to<ObjectPtr>()), u"Shapes");
            rangeOf(itemOf(shapes, 1)).put(u"Text", line);
            body = rangeOf(itemOf(shapes, 2));
        } else {
            const bool isFirst = number(body, u"Length") == 0;
            body.call(u"InsertAfter", (isFirst ? u"" : u"\r") + line.substr(1));
        }
        start = end + 1;
    }
}

const automation::MemberTable& LearnerMoves::members() const {
    using automation::method;
    using This = LearnerMoves;
    static const automation::MemberTable table{
        method<&This::pressDelete>(u"PressDelete"),
        method<&This::centimetres>(u"Centimetres"),
        method<&This::drag>(u"Drag"),
        method<&This::drawLine>(u"DrawLine"),
        method<&This::drawFreeform>(u"DrawFreeform"),
        method<&This::drawCurve>(u"DrawCurve"),
        method<&This::drawCurve>(u"Scribble"),
        method<&This::dragPoint>(u"DragPoint"),
        method<&This::deletePoint>(u"DeletePoint"),
        method<&This::type>(u"Type"),
        method<&This::correctSpelling>(u"CorrectSpelling"),
        method<&This::chooseSynonym>(u"ChooseSynonym"),
        method<&This::paintFormat>(u"PaintFormat"),
        method<&This::saveAs>(u"SaveAs"),
        method<&This::insertOutline>(u"InsertOutline"),
    };
    return table;
}

} // namespace host
