#include "simulator/files/drawing/ShapeWriter.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Anchor.h"
#include "simulator/files/drawing/AutoShapeKinds.h"
#include "simulator/files/drawing/Patches.h"
#include "simulator/files/drawing/Placeholders.h"
#include "simulator/files/drawing/PresetSeal.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/drawing/ShapeProperties.h"
#include "simulator/files/drawing/TableCodes.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"
#include "simulator/files/text/TextRecords.h"

#include <algorithm>

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

std::uint16_t kindOf(const Shape& shape) noexcept {
    switch (shape.type) {
    case msoFreeform:
    case msoGroup:
    case msoTable: return kind::freeform;
    case msoLine: return kind::line;
    case msoPicture: return kind::pictureFrame;
    case msoPlaceholder: return kind::rectangle;
    case msoTextEffect: return kind::firstWordArt;
    case msoTextBox: return kind::textBox;
    case msoAutoShape: break;
    }
    if (shape.connector) {
        return shape.connector->type == msoConnectorElbow   ? kind::elbow
               : shape.connector->type == msoConnectorCurve ? kind::curve
                                                            : kind::straightConnector;
    }
    return drawing::kindOf(shape.autoShapeType);
}

Record headOf(const Shape& shape, std::uint32_t number, bool isChild) {
    std::uint32_t flags = shapeFlag::anchored;
    flags |= shape.isComposed() ? shapeFlag::group : shapeFlag::typed;
    flags |= shape.connector ? shapeFlag::connector : 0U;
    flags |= isChild ? shapeFlag::child : 0U;
    flags |= shape.horizontalFlip ? shapeFlag::horizontalFlip : 0U;
    flags |= shape.verticalFlip ? shapeFlag::verticalFlip : 0U;
    files::ByteWriter out;
    out.write<std::uint32_t>(number).write<std::uint32_t>(flags);
    constexpr std::uint8_t version = 2;
    return Record::atom(type::ArtShapeAtom, out.take(), kindOf(shape), version);
}

Record placeholderAtom(PpPlaceholderType placeholder, SheetKind sheet) {
    files::ByteWriter out;
    out.write<std::int32_t>(isTitle(placeholder) ? 0 : 1);
    out.write<std::uint8_t>(placeholderCode(placeholder, sheet)).fill(3);
    return Record::atom(type::PlaceholderAtom, out.take());
}

std::uint32_t textKind(const Shape& shape, SheetKind sheet) noexcept {
    return shape.placeholder ? textKindOf(*shape.placeholder, sheet) : std::uint32_t{text::kind::Other};
}

/// The kind of a text that has changed: the one that it has, unless its shape has become another placeholder. What its
/// runs do not say comes from the styles of that kind.
std::uint32_t textKind(const Shape& shape, const ShapeOrigin& origin, const std::vector<Record>& block,
                       SheetKind sheet) {
    const bool isTold =
        std::any_of(block.begin(), block.end(), [](const Record& each) { return each.is(type::TextHeaderAtom); });
    return isTold && shape.placeholder == origin.asRead->placeholder ? text::kindOf(block) : textKind(shape, sheet);
}

/// What stands behind a text that is a field of a master alone: the record that makes it one.
std::optional<Record> fieldOf(const Shape& shape) {
    constexpr std::u16string_view mark = u"*";
    if (!shape.placeholder || !shape.text || shape.text->text() != mark) {
        return std::nullopt;
    }
    const auto field = [](std::uint16_t kind) { return Record::atom(kind, std::string(4, '\0')); };
    switch (*shape.placeholder) {
    case ppPlaceholderDate: return field(type::GenericDateField);
    case ppPlaceholderSlideNumber: return field(type::SlideNumberField);
    case ppPlaceholderFooter: return field(type::FooterField);
    case ppPlaceholderHeader: return field(type::HeaderField);
    default: return std::nullopt;
    }
}

Record clientDataOf(const Shape& shape, SheetKind sheet) {
    Record data = Record::container(type::ArtClientData, {});
    if (shape.placeholder) {
        data.children.push_back(placeholderAtom(*shape.placeholder, sheet));
    }
    records::putTags(data, shape.tags);
    if (shape.text && text::isNumbered(*shape.text)) {
        records::putData(data, text::extensionTag, bytesOf(text::numberingRecord()));
    }
    return data;
}

/// True where a shape or something in it stands elsewhere than the file says, or turned, so that no coordinates of
/// groups hold.
bool placesHaveChanged(const ShapePtr& shape, const Origin* document, std::int32_t group) {
    const ShapeOrigin* const origin = originOf(*shape, document);
    return origin == nullptr || origin->group != group || shape->frame() != origin->asRead->frame() ||
           shape->rotation != origin->asRead->rotation ||
           std::any_of(shape->items().begin(), shape->items().end(),
                       [&](const ShapePtr& item) { return placesHaveChanged(item, document, shape->id); });
}

/// True where two texts differ at most in their layout, which stands among the properties.
bool readsTheSame(const TextStory& left, const TextStory& right) {
    return left.text() == right.text() && left.runs() == right.runs() &&
           left.paragraphFormats() == right.paragraphFormats();
}

std::string placeBytes(std::uint32_t place) {
    return files::ByteWriter().write<std::uint32_t>(place).take();
}

} // namespace

std::vector<Record> ShapeWriter::write(const std::vector<ShapePtr>& shapes) {
    placeOutline(shapes);
    std::vector<Record> out;
    out.reserve(shapes.size());
    for (const ShapePtr& each : shapes) {
        out.push_back(shape(each, false));
    }
    return out;
}

void ShapeWriter::placeOutline(const std::vector<ShapePtr>& shapes) {
    std::map<std::uint32_t, const Shape*> byPlace;
    for (const ShapePtr& each : shapes) {
        forEachLeaf(each, [&](const ShapePtr& leaf) {
            const ShapeOrigin* const origin = originOf(*leaf, document_);
            if (origin != nullptr && origin->outline && leaf->text) {
                byPlace.emplace(*origin->outline, leaf.get());
            }
        });
    }
    for (const auto& [place, leaf] : byPlace) {
        outlinePlaces_[leaf] = static_cast<std::uint32_t>(outlinePlaces_.size());
    }
    outline_.resize(byPlace.size());
}

Record ShapeWriter::shape(const ShapePtr& shape, bool placesAreNew) {
    if (!shape->isComposed()) {
        return own(*shape, placesAreNew);
    }
    const ShapePtr outer = shape->group();
    const bool areNew = placesAreNew || placesHaveChanged(shape, document_, outer ? outer->id : 0);
    std::vector<Record> members{own(*shape, areNew)};
    for (const ShapePtr& item : shape->items()) {
        members.push_back(this->shape(item, areNew));
    }
    return Record::container(type::ArtShapeGroup, std::move(members));
}

Record ShapeWriter::own(const Shape& shape, bool placesAreNew) {
    const bool isChild = shape.group() != nullptr;
    const ShapeOrigin* const origin = originOf(shape, document_);
    if (origin == nullptr) {
        Record record = fresh(shape, ids_.shapeOf(shape.id), isChild);
        preset::write(record, shape);
        return record;
    }
    const bool stays = isChild == (origin->group != 0) && ShapeHead(origin->record).number == ids_.shapeOf(shape.id);
    const bool isSame = !placesAreNew && stays && isUnchanged(shape, *origin->asRead);
    Record record = isSame ? origin->record : patched(shape, *origin, isChild, placesAreNew);
    if (!origin->outline || !shape.text) {
        return record;
    }
    const auto place = outlinePlaces_.find(&shape);
    Record* const box = record.find(type::ArtClientTextbox);
    Record* const reference = box == nullptr ? nullptr : box->find(type::OutlineTextRefAtom);
    if (reference == nullptr) {
        return record;
    }
    std::vector<Record> block = *shape.text == *origin->asRead->text
                                    ? origin->outlineText
                                    : text::changedText(origin->outlineText, *origin->asRead->text, *shape.text,
                                                        textKind(shape, *origin, origin->outlineText, sheet_), fonts_);
    if (place == outlinePlaces_.end()) { // a second shape with this text: it takes it with it
        box->children.erase(box->children.begin() + (reference - box->children.data()));
        box->children.insert(box->children.begin(), block.begin(), block.end());
        return record;
    }
    reference->data = placeBytes(place->second);
    for (Record& part : block) {
        if (part.is(type::TextHeaderAtom)) {
            part.instance = static_cast<std::uint16_t>(place->second);
        }
    }
    outline_[place->second] = std::move(block);
    return record;
}

Record ShapeWriter::fresh(const Shape& shape, std::uint32_t number, bool isChild) {
    std::vector<Record> parts;
    if (shape.isComposed()) {
        parts.push_back(groupCoordinates(shape.frame()));
    }
    parts.push_back(headOf(shape, number, isChild));
    parts.push_back(writeProperties(shape).record(type::ArtProperties));
    if (shape.table) {
        parts.push_back(writeTable(*shape.table).record(type::ArtTertiaryProperties));
    }
    parts.push_back(isChild ? childAnchor(shape.frame(), shape.rotation) : clientAnchor(shape.frame(), shape.rotation));
    Record data = clientDataOf(shape, sheet_);
    if (!data.children.empty()) {
        parts.push_back(std::move(data));
    }
    if (shape.text) {
        std::vector<Record> text = text::textRecords(*shape.text, textKind(shape, sheet_), fonts_);
        if (std::optional<Record> field = fieldOf(shape)) {
            text.push_back(std::move(*field));
        }
        parts.push_back(Record::container(type::ArtClientTextbox, std::move(text)));
    }
    return Record::container(type::ArtShape, std::move(parts));
}

Record ShapeWriter::patched(const Shape& shape, const ShapeOrigin& origin, bool isChild, bool placesAreNew) {
    Record record = origin.record;
    const Record before = fresh(*origin.asRead, 0, origin.group != 0);
    const Record now = fresh(shape, ids_.shapeOf(shape.id), isChild);
    patchHead(record, before, now);
    PropertyTable wanted = propertiesOf(now);
    if (shape.name != origin.asRead->name) {
        wanted.setText(property::name, shape.name); // the record may say the former one, usual as it is
    }
    patchProperties(record, propertiesOf(before), wanted);
    patchPlace(record, before, now, placesAreNew);
    patchClientData(record, *origin.asRead, shape, clientDataOf(*origin.asRead, sheet_), clientDataOf(shape, sheet_));
    patchText(record, shape, origin);
    if (record != origin.record) {
        preset::write(record, shape);
    }
    return record;
}

void ShapeWriter::patchText(Record& record, const Shape& shape, const ShapeOrigin& origin) {
    const bool isDrawn = !origin.outline;
    if (!isDrawn || shape.text == origin.asRead->text) {
        return;
    }
    Record* const box = record.find(type::ArtClientTextbox);
    if (!shape.text) {
        std::erase_if(record.children, [](const Record& child) { return child.is(type::ArtClientTextbox); });
    } else if (box != nullptr && origin.asRead->text) {
        if (!readsTheSame(*shape.text, *origin.asRead->text)) {
            box->children = text::changedText(box->children, *origin.asRead->text, *shape.text,
                                              textKind(shape, origin, box->children, sheet_), fonts_);
        }
    } else {
        record.children.push_back(
            Record::container(type::ArtClientTextbox, text::textRecords(*shape.text, textKind(shape, sheet_), fonts_)));
    }
}

} // namespace simulator::drawing
