#include "host/play/ShapeReading.h"

#include "automation/Text.h"
#include "host/world/Members.h"

namespace host {

namespace {

using automation::LateBound;
using automation::toUtf8;
using nlohmann::json;

constexpr std::int32_t typeGroup = 6;       // msoGroup
constexpr std::int32_t typeTextEffect = 15; // msoTextEffect

json lookOf(const LateBound& run) {
    const LateBound font = memberOf(run, u"Font");
    return {{"text", toUtf8(run.get(u"Text").to<std::u16string>())},
            {"color", memberOf(font, u"Color").get(u"RGB").to<std::int32_t>()},
            {"size", font.get(u"Size").to<float>()},
            {"font", toUtf8(font.get(u"Name").to<std::u16string>())},
            {"bold", font.get(u"Bold").to<bool>()},
            {"italic", font.get(u"Italic").to<bool>()},
            {"underline", font.get(u"Underline").to<bool>()}};
}

/// A text by its runs, with the room that its shape leaves it.
json textIn(const LateBound& frame) {
    const LateBound range = memberOf(frame, u"TextRange");
    json runs = json::array();
    const auto count = countOf(LateBound(range.call(u"Runs").to<automation::ObjectPtr>()));
    for (std::int32_t i = 1; i <= count; ++i) {
        runs.push_back(lookOf(LateBound(range.call(u"Runs", i, std::int32_t(1)).to<automation::ObjectPtr>())));
    }
    if (runs.empty()) {
        runs.push_back(lookOf(range));
    }
    return {{"runs", std::move(runs)},
            {"alignment", memberOf(range, u"ParagraphFormat").get(u"Alignment").to<std::int32_t>()},
            {"anchor", frame.get(u"VerticalAnchor").to<std::int32_t>()},
            {"margins", {frame.get(u"MarginLeft").to<float>(), frame.get(u"MarginTop").to<float>()}}};
}

json itemsIn(const LateBound& shapes, const json& way);

json shapeAt(const LateBound& shape, const json& way) {
    const auto type = shape.get(u"Type").to<std::int32_t>();
    json found{{"path", way},
               {"id", shape.get(u"Id").to<std::int32_t>()},
               {"name", toUtf8(shape.get(u"Name").to<std::u16string>())},
               {"mark", markIn(shape)},
               {"type", type},
               {"autoShape", shape.get(u"AutoShapeType").to<std::int32_t>()},
               {"visible", shape.get(u"Visible").to<bool>()},
               {"left", shape.get(u"Left").to<float>()},
               {"top", shape.get(u"Top").to<float>()},
               {"width", shape.get(u"Width").to<float>()},
               {"height", shape.get(u"Height").to<float>()},
               {"rotation", shape.get(u"Rotation").to<float>()},
               {"locked", shape.get(u"LockAspectRatio").to<bool>()}};
    if (type == typeGroup) {
        found["items"] = itemsIn(memberOf(shape, u"GroupItems"), found["path"]);
        return found;
    }
    found["filled"] = memberOf(shape, u"Fill").get(u"Visible").to<bool>();
    if (type == typeTextEffect) {
        found["wordArt"] = toUtf8(memberOf(shape, u"TextEffect").get(u"Text").to<std::u16string>());
    }
    if (shape.get(u"HasTextFrame").to<bool>()) {
        found["text"] = textIn(memberOf(shape, u"TextFrame"));
    }
    return found;
}

json itemsIn(const LateBound& shapes, const json& way) {
    json items = json::array();
    std::int32_t place = 0;
    forEachItem(shapes, [&](const LateBound& shape) {
        json longer = way;
        longer.push_back(++place);
        items.push_back(shapeAt(shape, longer));
    });
    return items;
}

} // namespace

json shapesIn(const LateBound& shapes) {
    return itemsIn(shapes, json::array());
}

std::string markIn(const LateBound& marked) {
    return toUtf8(memberOf(marked, u"Tags").call(u"Item", std::u16string_view(u"Identite")).to<std::u16string>());
}

} // namespace host
