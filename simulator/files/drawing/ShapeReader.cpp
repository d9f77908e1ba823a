#include "simulator/files/drawing/ShapeReader.h"

#include "automation/Text.h"
#include "simulator/document/NewShape.h"
#include "simulator/files/Bytes.h"
#include "simulator/files/drawing/AutoShapeKinds.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/FillCodes.h"
#include "simulator/files/drawing/FreeformCodes.h"
#include "simulator/files/drawing/Placeholders.h"
#include "simulator/files/drawing/PresetSeal.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/powerpoint/Tags.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

std::optional<PpPlaceholderType> placeholderIn(const Record& record) {
    const Record* const client = record.find(type::ArtClientData);
    const Record* const atom = client == nullptr ? nullptr : client->find(type::PlaceholderAtom);
    if (atom == nullptr) {
        return std::nullopt;
    }
    files::ByteReader in(atom->data, "the record of a placeholder");
    in.skip(4);
    return placeholderOf(in.read<std::uint8_t>());
}

MsoShapeType typeOf(std::uint16_t kind, const Looks& looks) {
    const bool isWordArt = (kind >= kind::firstWordArt && kind <= kind::lastWordArt) ||
                           (kind >= kind::firstEffectText && kind <= kind::lastEffectText);
    if (isWordArt && looks.flag(property::effectFlags, flag::effectText, true)) {
        return msoTextEffect;
    }
    if (looks.own(property::picture) != nullptr || kind == kind::pictureFrame) {
        return msoPicture;
    }
    switch (kind) {
    case kind::textBox: return msoTextBox;
    case kind::line: return msoLine;
    case kind::freeform: return looks.own(property::vertices) != nullptr ? msoFreeform : msoAutoShape;
    default: return msoAutoShape;
    }
}

Line readLine(const Looks& looks) {
    Line line;
    line.visible = looks.flag(property::lineFlags, flag::lined, true);
    line.weight = looks.points(property::lineWidth, line.weight);
    line.color = colorOf(looks.number(property::lineColor, 0), line.color);
    line.dashStyle = dashStyleOf(looks.number(property::lineDashing, 0));
    return line;
}

Shadow readShadow(const Looks& looks) {
    constexpr std::uint32_t gray = 0x808080;
    Shadow shadow;
    shadow.visible = looks.flag(property::shadowFlags, flag::shadowed, false);
    shadow.obscured = looks.flag(property::shadowFlags, flag::shadowObscured, false);
    shadow.color = colorOf(looks.number(property::shadowColor, gray), shadow.color);
    shadow.offsetX = looks.points(property::shadowOffsetX, shadow.offsetX);
    shadow.offsetY = looks.points(property::shadowOffsetY, shadow.offsetY);
    return shadow;
}

ThreeD readThreeD(const Looks& looks) {
    ThreeD threeD;
    threeD.visible = looks.flag(property::extrusionFlags, flag::extruded, false);
    threeD.depth = looks.points(property::extrusionDepth, threeD.depth);
    return threeD;
}

TextEffect readEffect(const Looks& looks) {
    TextEffect effect;
    effect.text = looks.text(property::effectText);
    if (looks.own(property::effectFont) != nullptr) {
        effect.fontName = looks.text(property::effectFont);
    }
    effect.fontSize = looks.fixed(property::effectSize, effect.fontSize);
    effect.bold = looks.flag(property::effectFlags, flag::effectBold, false);
    effect.italic = looks.flag(property::effectFlags, flag::effectItalic, false);
    return effect;
}

TextLayout readLayout(const Looks& looks) {
    constexpr std::uint32_t unwrapped = 2;
    constexpr std::array anchors{msoAnchorTop,    msoAnchorMiddle, msoAnchorBottom,      msoAnchorTop,
                                 msoAnchorMiddle, msoAnchorBottom, msoAnchorTopBaseline, msoAnchorBottomBaseLine};
    constexpr std::array flows{
        msoTextOrientationHorizontal, msoTextOrientationVerticalFarEast,          msoTextOrientationUpward,
        msoTextOrientationDownward,   msoTextOrientationHorizontalRotatedFarEast, msoTextOrientationVertical};
    TextLayout layout;
    layout.autoSize =
        looks.flag(property::textFlags, flag::fitShapeToText, false) ? ppAutoSizeShapeToFitText : ppAutoSizeNone;
    layout.wordWrap = looks.number(property::wrapText, 0) != unwrapped;
    layout.marginLeft = looks.points(property::textLeft, layout.marginLeft);
    layout.marginTop = looks.points(property::textTop, layout.marginTop);
    layout.marginRight = looks.points(property::textRight, layout.marginRight);
    layout.marginBottom = looks.points(property::textBottom, layout.marginBottom);
    const std::uint32_t anchor = looks.number(property::anchorText, 0);
    layout.anchor = anchor < anchors.size() ? anchors.at(anchor) : layout.anchor;
    const std::uint32_t flow = looks.number(property::textFlow, 0);
    layout.orientation = flow < flows.size() ? flows.at(flow) : layout.orientation;
    return layout;
}

bool holdsText(const Shape& shape, std::uint16_t kind) noexcept {
    const bool isConnector = kind >= kind::straightConnector && kind <= kind::lastConnector;
    return !isConnector && (shape.type == msoAutoShape || shape.type == msoTextBox || shape.type == msoPlaceholder ||
                            shape.type == msoFreeform);
}

text::Numbering numberingIn(const Record& record) {
    const Record* const client = record.find(type::ArtClientData);
    const auto data = client == nullptr ? std::nullopt : powerpoint::readData(*client, text::extensionTag);
    if (!data || data->size() < records::headerSize) {
        return {};
    }
    files::ByteReader in(*data, "an extension of a shape");
    in.skip(2);
    const auto first = in.read<std::uint16_t>();
    const std::size_t length = in.read<std::uint32_t>();
    return first == type::StyleTextProp9Atom ? text::readNumbering(in.take(length)) : text::Numbering();
}

/// Gives a group its items, which go on knowing the groups that they were taken out of.
void adopt(const ShapePtr& group, std::vector<ShapePtr> items) {
    if (items.empty()) {
        return;
    }
    std::vector<std::int32_t> formerGroups;
    std::transform(items.begin(), items.end(), std::back_inserter(formerGroups),
                   [](const ShapePtr& item) { return item->formerGroup; });
    Shape::adopt(group, std::move(items));
    for (std::size_t i = 0; i < formerGroups.size(); ++i) {
        group->items()[i]->formerGroup = formerGroups[i];
    }
}

} // namespace

PropertyTable propertiesOf(const Record& shape) {
    PropertyTable properties;
    for (const Record& child : shape.children) {
        const bool isTable = child.is(type::ArtProperties) || child.is(type::ArtSecondaryProperties) ||
                             child.is(type::ArtTertiaryProperties);
        if (isTable) {
            const PropertyTable table(child);
            for (const Property& property : table.all()) {
                properties.put(property);
            }
        }
    }
    return properties;
}

std::vector<ShapePtr> ShapeReader::read(const Record& drawing) {
    const Record& group = drawing.demand(type::ArtDrawing).demand(type::ArtShapeGroup);
    if (group.children.empty() || !group.children.front().is(type::ArtShape)) {
        throw DamagedPresentation("the shapes of a drawing do not begin with the record of their group");
    }
    return members(group, {}, 0);
}

std::vector<ShapePtr> ShapeReader::members(const Record& group, const Mapping& mapping, std::int32_t groupId) {
    std::vector<ShapePtr> shapes;
    for (std::size_t place = 1; place < group.children.size(); ++place) {
        const Record& record = group.children[place];
        if (record.is(type::ArtShapeGroup)) {
            shapes.push_back(this->group(record, mapping, groupId));
        } else if (record.is(type::ArtShape) && (ShapeHead(record).flags & shapeFlag::deleted) == 0) {
            shapes.push_back(single(record, mapping, groupId));
        }
    }
    return shapes;
}

ShapePtr ShapeReader::group(const Record& record, const Mapping& mapping, std::int32_t groupId) {
    if (record.children.empty() || !record.children.front().is(type::ArtShape)) {
        throw DamagedPresentation("a group of shapes does not begin with its own record");
    }
    const Record& own = record.children.front();
    const PropertyTable properties = propertiesOf(own);
    auto shape = std::make_shared<Shape>();
    shape->type = msoGroup;
    shape->autoShapeType = msoShapeMixed;
    readIdentity(own, Looks({&properties}), *shape);
    const Edges inner = coordinatesOf(own);
    const Edges outer = edgesOf(own, mapping).value_or(inner);
    std::vector<ShapePtr> items = members(record, Mapping(inner, outer), shape->id);
    shape->setFrame(items.empty() ? frameOf(outer, 0) : boundsOf(items));

    const auto origin = std::make_shared<ShapeOrigin>();
    origin->document = context_.document;
    origin->record = own;
    origin->group = groupId;
    origin->asRead = std::make_shared<const Shape>(*shape);
    shape->origin = origin;
    adopt(shape, std::move(items));
    return shape;
}

ShapePtr ShapeReader::single(const Record& record, const Mapping& mapping, std::int32_t groupId) {
    const ShapeHead head(record);
    const PropertyTable properties = propertiesOf(record);
    PropertyTable master;
    std::optional<Edges> edges = edgesOf(record, mapping);
    const Property* const masterNumber = properties.find(property::master);
    if (masterNumber != nullptr && context_.masters.contains(masterNumber->value)) {
        const Record& masterRecord = context_.masters.at(masterNumber->value);
        master = propertiesOf(masterRecord);
        edges = edges ? edges : edgesOf(masterRecord, {});
    }
    const Looks looks({&properties, &master, &context_.defaults});

    auto shape = std::make_shared<Shape>();
    shape->placeholder = placeholderIn(record);
    shape->type = shape->placeholder ? msoPlaceholder : typeOf(head.kind, looks);
    shape->autoShapeType =
        shape->type == msoAutoShape ? autoShapeTypeOf(head.kind).value_or(msoShapeMixed) : msoShapeMixed;
    readIdentity(record, looks, *shape);
    shape->setFrame(frameOf(edges.value_or(Edges()), shape->rotation));
    shape->fill = readFill(looks);
    shape->line = readLine(looks);
    shape->shadow = readShadow(looks);
    shape->threeD = readThreeD(looks);
    if (shape->type == msoTextEffect) {
        shape->textEffect = readEffect(looks);
    } else if (shape->type == msoFreeform) {
        Corners corners = readCorners(looks, shape->frame());
        shape->nodes = std::move(corners.nodes);
        shape->closed = corners.isClosed;
    }
    preset::read(record, properties, *shape);

    const auto origin = std::make_shared<ShapeOrigin>();
    if (holdsText(*shape, head.kind)) {
        readText(record, looks, *shape, *origin);
    }
    origin->document = context_.document;
    origin->record = record;
    origin->group = groupId;
    origin->asRead = std::make_shared<const Shape>(*shape);
    shape->origin = origin;
    return shape;
}

void ShapeReader::readIdentity(const Record& record, const Looks& looks, Shape& shape) {
    const ShapeHead head(record);
    shape.id = idFor(head.number);
    shape.horizontalFlip = (head.flags & shapeFlag::horizontalFlip) != 0;
    shape.verticalFlip = (head.flags & shapeFlag::verticalFlip) != 0;
    shape.rotation = looks.fixed(property::rotation, 0);
    shape.name = looks.text(property::name);
    if (shape.name.empty()) {
        shape.name = std::u16string(newShape::baseName(shape)) + u" " + automation::decimal(shape.id);
    }
    shape.alternativeText = looks.text(property::description);
    shape.visible = !looks.flag(property::groupFlags, flag::hidden, false);
    shape.lockAspectRatio = looks.flag(property::protection, flag::lockAspectRatio, false);
    const Property* const regroup = looks.own(property::regroup);
    shape.formerGroup = regroup == nullptr ? 0 : static_cast<std::int32_t>(regroup->value);
    if (const Record* const client = record.find(type::ArtClientData)) {
        shape.tags = powerpoint::readTags(*client);
    }
}

std::int32_t ShapeReader::idFor(std::uint32_t number) {
    constexpr std::uint32_t unlisted = 1U << 20U; // a number outside the drawing's clusters gives no id to rely on
    std::int32_t id = context_.ids.idOf(number).value_or(static_cast<std::int32_t>(number % unlisted));
    while (id == 0 || !taken_.insert(id).second) {
        ++id;
    }
    return id;
}

void ShapeReader::readText(const Record& record, const Looks& looks, Shape& shape, ShapeOrigin& origin) const {
    const Record* const box = record.find(type::ArtClientTextbox);
    const std::vector<Record> none;
    const std::vector<Record>* block = box == nullptr ? &none : &box->children;
    if (const Record* const reference = box == nullptr ? nullptr : box->find(type::OutlineTextRefAtom)) {
        const auto place = files::ByteReader(reference->data, "a reference to the outline").read<std::uint32_t>();
        if (place < context_.outline.size()) {
            origin.outline = place;
            origin.outlineText = context_.outline[place];
            block = &origin.outlineText;
        }
    }
    if (block->empty() && shape.placeholder) {
        const std::array header{Record::atom(
            type::TextHeaderAtom, files::ByteWriter().write<std::uint32_t>(textKindOf(*shape.placeholder)).take())};
        shape.text = text::readText({header.begin(), header.end()}, {}, context_.text);
    } else {
        shape.text = text::readText(*block, numberingIn(record), context_.text);
    }
    shape.text->layout = readLayout(looks);
}

} // namespace simulator::drawing
