#include "simulator/files/powerpoint/WrittenDocument.h"

#include "simulator/document/Masters.h"
#include "simulator/files/powerpoint/BlankDocument.h"
#include "simulator/files/records/RecordTypes.h"

namespace simulator::powerpoint {

using records::Record;
namespace type = records::type;

namespace {

std::shared_ptr<const PresentationOrigin> originOf(const Presentation& presentation) {
    auto origin = std::dynamic_pointer_cast<const PresentationOrigin>(presentation.origin);
    return origin ? origin : blankDocument();
}

std::int64_t shapesIn(const PersistObjects& objects) {
    std::int64_t count = 0;
    for (const PersistObject& each : objects.all()) {
        count += static_cast<std::int64_t>(countShapeRecords(each.record));
    }
    return count;
}

std::int64_t drawingsIn(const PersistObjects& objects) {
    return static_cast<std::int64_t>(objects.all().size());
}

} // namespace

WrittenDocument::WrittenDocument(const Presentation& presentation)
    : presentation_(presentation), origin_(originOf(presentation)), objects_(origin_->objects),
      drawings_(listOfDrawings()) {
    if (const Record* const collection = fontCollection()) {
        fonts_ = text::FontTable(*collection);
    }
}

bool WrittenDocument::isBlank() const noexcept {
    return origin_ == blankDocument();
}

const SlideOrigin* WrittenDocument::originIn(const Slide& sheet) const noexcept {
    const auto* const origin = dynamic_cast<const SlideOrigin*>(sheet.origin.get());
    return origin != nullptr && origin->document == origin_ ? origin : nullptr;
}

std::uint32_t WrittenDocument::append(Record record) {
    const std::uint32_t id = objects_.highestId() + 1;
    objects_.append(id, std::move(record));
    return id;
}

WrittenSlide WrittenDocument::writeSheet(const Slide& sheet, const SlideOrigin* origin, bool isCopy) {
    const SlidePtr master = findMaster(presentation_, sheet);
    return writeSlide(sheet, origin, isCopy, master.get(), {drawings_, fonts_, *origin_, masters_, firstMaster_});
}

void WrittenDocument::writeTotals() {
    writeFonts();
    drawings_.count(drawingsIn(objects_) - drawingsIn(origin_->objects),
                    shapesIn(objects_) - shapesIn(origin_->objects));
    listOfDrawings() = drawings_.atom();
}

void WrittenDocument::writeFonts() {
    Record* const environment = record().find(type::Environment);
    if (Record* const collection = fontCollection()) {
        fonts_.complete(*collection);
    } else if (Record fresh = Record::container(type::FontCollection, {}); environment != nullptr) {
        fonts_.complete(fresh);
        if (!fresh.children.empty()) {
            environment->children.insert(environment->children.begin(), std::move(fresh));
        }
    }
}

Record& WrittenDocument::listOfDrawings() {
    return *record().find(type::DrawingGroup)->find(type::ArtGroup)->find(type::ArtGroupAtom);
}

Record* WrittenDocument::fontCollection() {
    Record* const environment = record().find(type::Environment);
    return environment == nullptr ? nullptr : environment->find(type::FontCollection);
}

} // namespace simulator::powerpoint
