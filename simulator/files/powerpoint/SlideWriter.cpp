#include "simulator/files/powerpoint/SlideWriter.h"

#include "automation/Text.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/ConnectionRules.h"
#include "simulator/files/drawing/FillCodes.h"
#include "simulator/files/drawing/Patches.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/drawing/ShapeOrigin.h"
#include "simulator/files/drawing/ShapeWriter.h"
#include "simulator/files/powerpoint/BlankDocument.h"
#include "simulator/files/powerpoint/HeadersFootersRecord.h"
#include "simulator/files/powerpoint/Layouts.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/SlideShowRecords.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/Tags.h"

#include <algorithm>

namespace simulator::powerpoint {

namespace {

using drawing::DrawingIds;
using records::Record;
namespace type = records::type;

constexpr std::int32_t backgroundShape = 1;

std::int32_t highestId(const std::vector<ShapePtr>& shapes) noexcept {
    std::int32_t highest = backgroundShape;
    for (const ShapePtr& shape : shapes) {
        highest = std::max({highest, shape->id, highestId(shape->items())});
    }
    return highest;
}

void renumber(Record& shape, std::uint32_t number) {
    if (Record* const atom = shape.find(type::ArtShapeAtom)) {
        files::putNumber(atom->data, 0, number);
    }
}

/// Gives a drawing that was copied, or is new, the numbers of its own.
void renumberDrawing(Record& art, const DrawingIds& former, const DrawingIds& ids) {
    art.find(type::ArtDrawingAtom)->instance = static_cast<std::uint16_t>(ids.drawing);
    renumber(art.find(type::ArtShapeGroup)->children.front(), ids.shapeOf(0));
    if (Record* const background = art.find(type::ArtShape)) {
        renumber(*background, ids.shapeOf(drawing::backgroundId(art, former).value_or(backgroundShape)));
    }
}

std::vector<std::vector<Record>> writeShapes(Record& art, const Slide& slide, const DrawingIds& ids,
                                             const SlideTarget& target, bool isNew) {
    const std::size_t before = countShapeRecords(art);
    Record& group = *art.find(type::ArtShapeGroup);
    drawing::ShapeWriter writer(ids, target.fonts, &target.document, slide.kind);
    std::vector<Record> shapes = writer.write(slide.shapes());
    group.children.resize(1);
    std::move(shapes.begin(), shapes.end(), std::back_inserter(group.children));
    const std::size_t after = countShapeRecords(art);
    Record& counts = *art.find(type::ArtDrawingAtom);
    const std::uint32_t last = ids.shapeOf(highestId(slide.shapes()));
    const std::uint32_t lastSaid = files::numberAt(counts.data, 4);
    if (isNew || after != before || last > lastSaid) {
        const auto said = files::numberAt(counts.data, 0);
        files::putNumber(counts.data, 0, static_cast<std::uint32_t>(said + after - before));
        files::putNumber(counts.data, 4, isNew ? last : std::max(last, lastSaid));
    }
    return writer.outline();
}

void writeName(Record& record, const Slide& slide, const SlideOrigin* origin) {
    constexpr std::int32_t reservedIds = 255;
    const bool isUsual = slide.name == u"Slide" + automation::decimal(slide.id - reservedIds);
    const std::u16string wanted = isUsual ? std::u16string() : slide.name;
    const std::u16string said = origin == nullptr ? std::u16string() : origin->name;
    if (slide.name == said) {
        return;
    }
    std::erase_if(record.children, [](const Record& child) { return child.is(type::CString, slideNameInstance); });
    if (!wanted.empty()) {
        const auto after = std::find_if(record.children.begin(), record.children.end(),
                                        [](const Record& child) { return child.is(type::ProgTags); });
        record.children.insert(after, Record::atom(type::CString, files::utf16Bytes(wanted), slideNameInstance));
    }
}

/// The fill of a background, over what its record says.
void writeBackground(Record& art, const Slide& slide, const SlideTarget& target) {
    Record* const record = art.find(type::ArtShape);
    if (!slide.background || record == nullptr) {
        return;
    }
    const drawing::ShapeOrigin* const origin = drawing::originOf(*slide.background, &target.document);
    drawing::PropertyTable before;
    if (origin != nullptr) {
        drawing::writeFill(before, origin->asRead->fill);
    }
    drawing::PropertyTable now;
    drawing::writeFill(now, slide.background->fill);
    drawing::patchProperties(*record, before, now);
}

/// A new slide names its master, and one that follows another than it was read with.
void writeMaster(Record& record, const Slide& slide, const SlideOrigin* origin, const Slide* master,
                 const SlideTarget& target) {
    const auto found = target.masters.find(master);
    const bool isOther = slide.kind == SheetKind::Slide ? origin == nullptr || origin->master.lock().get() != master
                                                        : slide.kind == SheetKind::TitleMaster && origin == nullptr;
    if (found != target.masters.end() && isOther) {
        files::putNumber(record.find(type::SlideAtom)->data, slideAtomMaster, found->second);
    }
}

void writeSettings(Record& record, const Slide& slide, const SlideOrigin* origin) {
    Record* const atom = record.find(type::SlideAtom);
    if (atom != nullptr && slide.layout != (origin == nullptr ? ppLayoutBlank : origin->layout)) {
        atom->data.replace(0, slideAtomLayoutLength, layoutBytes(slide.layout));
    }
    if (slide.displaysMasterShapes != (origin == nullptr || origin->displaysMasterShapes) ||
        slide.followsMasterBackground != (origin == nullptr || origin->followsMasterBackground)) {
        putFollowing(record, slide.displaysMasterShapes, slide.followsMasterBackground);
    }
    if (slide.headersFooters != (origin == nullptr ? std::nullopt : origin->headersFooters)) {
        putHeadersFooters(record, headersFooters::ofSheet, slide.headersFooters);
    }
    if (!(slide.transition == (origin == nullptr ? Transition() : origin->transition))) {
        putTransition(record, slide.transition);
    }
    writeName(record, slide, origin);
    if (!(slide.tags == (origin == nullptr ? TagList() : origin->tags))) {
        records::putTags(record, slide.tags);
    }
}

} // namespace

WrittenSlide writeSlide(const Slide& slide, const SlideOrigin* origin, bool isCopy, const Slide* master,
                        const SlideTarget& target) {
    WrittenSlide written{
        origin == nullptr ? blankSheet(slide.kind, target.master) : *target.document.objects.find(origin->object), {}};
    const bool isNew = origin == nullptr || isCopy;
    const DrawingIds former = origin == nullptr ? DrawingIds{0, {0}} : target.drawings.ids(origin->drawing);
    DrawingIds ids = isNew ? target.drawings.add() : former;
    Record& art = *written.record.find(type::Drawing)->find(type::ArtDrawing);
    std::int32_t highest = highestId(slide.shapes());
    if (isNew) {
        highest = std::max(highest, drawing::backgroundId(art, former).value_or(0));
    }
    target.drawings.reserve(ids, highest);
    if (isNew) {
        renumberDrawing(art, former, ids);
        if (slide.kind == SheetKind::Slide) {
            files::putNumber(written.record.find(type::SlideAtom)->data, slideAtomNotes, 0);
        }
    }
    writeMaster(written.record, slide, origin, master, target);
    writeBackground(art, slide, target);
    written.outline = writeShapes(art, slide, ids, target, isNew);
    drawing::writeConnections(art, ids, slide);
    writeSettings(written.record, slide, origin);
    return written;
}

std::size_t countShapeRecords(const Record& record) noexcept {
    std::size_t count = record.is(type::ArtShape) ? 1 : 0;
    for (const Record& child : record.children) {
        count += countShapeRecords(child);
    }
    return count;
}

} // namespace simulator::powerpoint
