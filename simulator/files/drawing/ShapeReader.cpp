#include "simulator/files/drawing/ShapeReader.h"

#include "simulator/document/NewShape.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/AutoShapeKinds.h"
#include "simulator/files/drawing/ExtrusionCodes.h"
#include "simulator/files/drawing/FillCodes.h"
#include "simulator/files/drawing/FreeformCodes.h"
#include "simulator/files/drawing/LineCodes.h"
#include "simulator/files/drawing/Placeholders.h"
#include "simulator/files/drawing/PresetSeal.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/drawing/ShadowCodes.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/drawing/TableCodes.h"
#include "simulator/files/drawing/WordArtCodes.h"
#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"

#include <algorithm>

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

std::optional<PpPlaceholderType> placeholderIn(const Record& record, SheetKind sheet) {
    const Record* const client = record.find(type::ArtClientData);
    const Record* const atom = client == nullptr ? nullptr : client->find(type::PlaceholderAtom);
    if (atom == nullptr) {
        return std::nullopt;
    }
    constexpr std::size_t codePlace = 4;
    return atom->data.size() > codePlace ? placeholderOf(static_cast<std::uint8_t>(atom->data[codePlace]), sheet)
                                         : std::nullopt;
}

MsoShapeType typeOf(std::uint16_t kind, const Looks& looks) {
    if (isWordArt(kind, looks)) {
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

/// What has no record of its own is no shape.
bool isShape(const Record& record) noexcept {
    return record.is(type::ArtShape) && record.find(type::ArtShapeAtom) != nullptr;
}

/// Gives a group its items, which go on knowing the groups that they were taken out of.
void adopt(const ShapePtr& group, std::vector<ShapePtr> items) {
    if (items.empty()) {
        return;
    }
    std::vector<std::int32_t> formerGroups;
    std::transform(items.begin(), items.end(), std::back_inserter(formerGroups),
                   [](const ShapePtr& item) { return item->formerGroup; });
    const Frame frame = group->frame(); // PowerPoint's own, which need not be exactly what the items cover
    Shape::adopt(group, std::move(items), frame);
    for (std::size_t i = 0; i < formerGroups.size(); ++i) {
        group->items()[i]->formerGroup = formerGroups[i];
    }
}

} // namespace

MasterShape::MasterShape(const Record& shape) : properties(propertiesOf(shape)), edges(edgesOf(shape, {})) {}

std::vector<ShapePtr> ShapeReader::read(const Record& drawing) {
    const Record& group = drawing.demand(type::ArtDrawing).demand(type::ArtShapeGroup);
    if (group.children.empty() || !group.children.front().is(type::ArtShape)) {
        throw records::DamagedRecord(group.offset,
                                     "the shapes of a drawing do not begin with the record of their group");
    }
    return members(group, {}, 0);
}

ShapePtr ShapeReader::readBackground(const Record& drawing) {
    const Record* const record = drawing.demand(type::ArtDrawing).find(type::ArtShape);
    if (record == nullptr || !isShape(*record)) {
        return nullptr;
    }
    ShapePtr shape = single(*record, {}, 0);
    shape->name = u"Background";
    shape->text.reset();
    return shape;
}

std::vector<ShapePtr> ShapeReader::members(const Record& group, const Mapping& mapping, std::int32_t groupId) {
    std::vector<ShapePtr> shapes;
    for (std::size_t place = 1; place < group.children.size(); ++place) {
        const Record& record = group.children[place];
        records::within(record, [&] {
            if (record.is(type::ArtShapeGroup) && !record.children.empty() && isShape(record.children.front()) &&
                record.children.front().find(type::ArtShapeGroupAtom) != nullptr) {
                shapes.push_back(this->group(record, mapping, groupId));
            } else if (isShape(record) && (ShapeHead(record).flags & shapeFlag::deleted) == 0) {
                shapes.push_back(single(record, mapping, groupId));
            }
        });
    }
    return shapes;
}

ShapePtr ShapeReader::group(const Record& record, const Mapping& mapping, std::int32_t groupId) {
    const Record& own = record.children.front();
    const PropertyTable properties = propertiesOf(own);
    auto shape = std::make_shared<Shape>();
    shape->type = msoGroup;
    readIdentity(own, Looks({&properties}), *shape);
    const Edges inner = coordinatesOf(own);
    const Edges said = edgesOf(own, mapping).value_or(inner);
    const Edges outer = liesOnItsSide(shape->rotation) ? edgesOf(frameOf(said, shape->rotation)) : said;
    std::vector<ShapePtr> items = members(record, Mapping(inner, outer), shape->id);
    shape->setFrame(frameOf(outer, 0));
    shape->table = groupId == 0 ? readTable(properties, items) : std::nullopt; // PowerPoint groups no tables
    shape->type = shape->table ? msoTable : msoGroup;

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
    const MasterShape* const master = masterOf(properties);
    std::optional<Edges> edges = edgesOf(record, mapping);
    edges = edges || master == nullptr ? edges : master->edges;
    const PropertyTable none;
    const Looks looks({&properties, master == nullptr ? &none : &master->properties, &context_.defaults});

    auto shape = std::make_shared<Shape>();
    shape->placeholder = placeholderIn(record, context_.sheet);
    shape->type = shape->placeholder ? msoPlaceholder : typeOf(head.kind, looks);
    shape->autoShapeType =
        shape->type == msoAutoShape ? autoShapeTypeOf(head.kind).value_or(msoShapeMixed) : msoShapeMixed;
    if (shape->type == msoAutoShape && head.kind >= kind::straightConnector && head.kind <= kind::lastConnector) {
        const bool isElbow = head.kind >= kind::firstElbow && head.kind < kind::firstCurve;
        shape->connector = Connector{head.kind < kind::firstElbow ? msoConnectorStraight
                                     : isElbow                    ? msoConnectorElbow
                                                                  : msoConnectorCurve,
                                     {},
                                     {}};
    }
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
        texts_.read(record, looks, *shape, *origin);
    }
    origin->document = context_.document;
    origin->record = record;
    origin->group = groupId;
    origin->asRead = std::make_shared<const Shape>(*shape);
    shape->origin = origin;
    return shape;
}

const MasterShape* ShapeReader::masterOf(const PropertyTable& properties) const {
    const Property* const number = properties.find(property::master);
    const auto found = number == nullptr ? context_.masters.end() : context_.masters.find(number->value);
    return found == context_.masters.end() ? nullptr : &found->second;
}

void ShapeReader::readIdentity(const Record& record, const Looks& looks, Shape& shape) {
    const ShapeHead head(record);
    shape.id = idFor(head.number);
    shape.horizontalFlip = (head.flags & shapeFlag::horizontalFlip) != 0;
    shape.verticalFlip = (head.flags & shapeFlag::verticalFlip) != 0;
    shape.rotation = looks.fixed(property::rotation, 0);
    shape.name = looks.text(property::name);
    if (shape.name.empty()) {
        shape.name = newShape::usualName(shape);
    }
    shape.alternativeText = looks.text(property::description);
    shape.visible = !looks.flag(property::groupFlags, flag::hidden, false);
    shape.lockAspectRatio = looks.flag(property::protection, flag::lockAspectRatio, false);
    const Property* const regroup = looks.own(property::regroup);
    shape.formerGroup = regroup == nullptr ? 0 : static_cast<std::int32_t>(regroup->value);
    if (const Record* const client = record.find(type::ArtClientData)) {
        shape.tags = records::readTags(*client);
    }
}

std::int32_t ShapeReader::idFor(std::uint32_t number) {
    constexpr std::uint32_t unlisted = 1U << 16U; // a number outside the drawing's clusters gives no id to rely on
    std::int32_t id = context_.ids.idOf(number).value_or(static_cast<std::int32_t>(number % unlisted));
    if (id == 0 || taken_.contains(id)) {
        id = taken_.empty() ? 1 : *taken_.rbegin() + 1;
    }
    taken_.insert(id);
    return id;
}

} // namespace simulator::drawing
