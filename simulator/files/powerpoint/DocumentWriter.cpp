#include "simulator/files/powerpoint/DocumentWriter.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/powerpoint/BlankDocument.h"
#include "simulator/files/powerpoint/ColorSchemeAtom.h"
#include "simulator/files/powerpoint/DocumentSettings.h"
#include "simulator/files/powerpoint/PersistWriter.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/SlideWriter.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <set>

namespace simulator::powerpoint {

namespace {

using records::Record;
namespace type = records::type;

std::shared_ptr<const PresentationOrigin> originOf(const Presentation& presentation) {
    auto origin = std::dynamic_pointer_cast<const PresentationOrigin>(presentation.origin);
    return origin ? origin : blankDocument();
}

/// Writes one document.
class DocumentWriter {
public:
    explicit DocumentWriter(const Presentation& presentation)
        : presentation_(presentation), origin_(originOf(presentation)), objects_(origin_->objects),
          drawings_(listOfDrawings()) {
        if (const Record* const collection = fontCollection()) {
            fonts_ = text::FontTable(*collection);
        }
    }

    std::string write() {
        const std::vector<SlideEntry> entries = writeSlides();
        dropSlidesThatAreGone(entries);
        putEntries(document(), slideList::slides, entries);
        writeSettings(document(), presentation_, *origin_);
        writeColors();
        writeFonts();
        countDrawings();
        return writeObjects(objects_, lastEdit(), *origin_);
    }

private:
    [[nodiscard]] Record& document() { return *objects_.find(origin_->document); }
    [[nodiscard]] Record& listOfDrawings() {
        return *document().find(type::DrawingGroup)->find(type::ArtGroup)->find(type::ArtGroupAtom);
    }
    [[nodiscard]] Record* fontCollection() {
        Record* const environment = document().find(type::Environment);
        return environment == nullptr ? nullptr : environment->find(type::FontCollection);
    }

    [[nodiscard]] std::uint32_t masterOfNewSlides() {
        const std::vector<SlideEntry> masters = entriesIn(document(), slideList::masters);
        return masters.empty() ? 0 : masters.front().id();
    }

    std::vector<SlideEntry> writeSlides() {
        const SlideTarget target{drawings_, fonts_, *origin_, masterOfNewSlides()};
        std::vector<SlideEntry> entries;
        std::set<std::uint32_t> written;
        for (const SlidePtr& slide : presentation_.slides()) {
            const auto* origin = dynamic_cast<const SlideOrigin*>(slide->origin.get());
            origin = origin != nullptr && origin->document == origin_ ? origin : nullptr;
            const bool isCopy = origin != nullptr && !written.insert(origin->object).second;
            WrittenSlide now = writeSlide(*slide, origin, isCopy, target);
            SlideEntry entry = origin == nullptr ? SlideEntry() : origin->entry;
            if (origin == nullptr || isCopy) {
                const std::uint32_t id = objects_.highestId() + 1;
                objects_.append(id, std::move(now.record));
                entry.persist = persistAtom(id, notOutlineAlone, 0);
                entry.texts.clear();
            } else {
                *objects_.find(origin->object) = std::move(now.record);
            }
            entry.setId(static_cast<std::uint32_t>(slide->id));
            entry.setTexts(std::move(now.outline));
            entries.push_back(std::move(entry));
        }
        return entries;
    }

    /// Slides that were deleted leave with their notes.
    void dropSlidesThatAreGone(const std::vector<SlideEntry>& entries) {
        std::set<std::uint32_t> kept;
        for (const SlideEntry& entry : entries) {
            kept.insert(entry.object());
        }
        std::set<std::uint32_t> gone;
        std::set<std::uint32_t> goneNotes;
        for (const SlideEntry& entry : entriesIn(document(), slideList::slides)) {
            if (!kept.contains(entry.object())) {
                const Record* const slide = objects_.find(entry.object());
                if (slide == nullptr || !slide->is(type::Slide)) {
                    continue;
                }
                gone.insert(entry.object());
                if (const std::uint32_t notes = SlideAtom(*slide).notes; notes != 0) {
                    goneNotes.insert(notes);
                }
            }
        }
        std::vector<SlideEntry> notes = entriesIn(document(), slideList::notes);
        const std::size_t before = notes.size();
        std::erase_if(notes, [&](const SlideEntry& entry) {
            const bool isGone = goneNotes.contains(entry.id());
            if (isGone) {
                gone.insert(entry.object());
            }
            return isGone;
        });
        if (notes.size() != before) {
            putEntries(document(), slideList::notes, notes);
        }
        objects_.eraseIf([&](std::uint32_t id) { return gone.contains(id); });
    }

    /// Masters and slides that have the document's colours take the new ones.
    void writeColors() {
        const std::string before = colorBytes(origin_->colors);
        const std::string now = colorBytes(presentation_.colors);
        const std::string usual = colorBytes({});
        objects_.forEach([&](std::uint32_t id, Record& record) {
            Record* const atom = record.find(type::ColorSchemeAtom, shapesSchemeInstance);
            const bool isFresh = origin_->objects.find(id) == nullptr && atom != nullptr && atom->data == usual;
            if (atom != nullptr && (isFresh || (before != now && atom->data == before))) {
                atom->data = now;
            }
        });
    }

    void writeFonts() {
        Record* const environment = document().find(type::Environment);
        if (Record* const collection = fontCollection()) {
            fonts_.complete(*collection);
        } else if (Record fresh = Record::container(type::FontCollection, {}); environment != nullptr) {
            fonts_.complete(fresh);
            if (!fresh.children.empty()) {
                environment->children.insert(environment->children.begin(), std::move(fresh));
            }
        }
    }

    void countDrawings() {
        const auto shapesIn = [](const PersistObjects& objects) {
            std::int64_t count = 0;
            for (const PersistObject& each : objects.all()) {
                count += static_cast<std::int64_t>(countShapeRecords(each.record));
            }
            return count;
        };
        const auto drawingsIn = [](const PersistObjects& objects) {
            return static_cast<std::int64_t>(objects.all().size());
        };
        drawings_.count(drawingsIn(objects_) - drawingsIn(origin_->objects),
                        shapesIn(objects_) - shapesIn(origin_->objects));
        listOfDrawings() = drawings_.atom();
    }

    /// The record of the last edit, which names a slide that was shown.
    [[nodiscard]] Record lastEdit() const {
        Record edit = origin_->userEdit;
        const auto& slides = presentation_.slides();
        const std::uint32_t lastSlide = files::numberAt(edit.data, userEdit::lastSlide);
        const bool isThere = std::any_of(slides.begin(), slides.end(), [lastSlide](const SlidePtr& slide) {
            return static_cast<std::uint32_t>(slide->id) == lastSlide;
        });
        if (!isThere) {
            const std::int32_t first = slides.empty() ? 0 : slides.front()->id;
            files::putNumber(edit.data, userEdit::lastSlide, static_cast<std::uint32_t>(first));
        }
        return edit;
    }

    static constexpr std::uint32_t notOutlineAlone = 4;

    const Presentation& presentation_;
    std::shared_ptr<const PresentationOrigin> origin_;
    PersistObjects objects_;
    drawing::DrawingGroup drawings_;
    text::FontTable fonts_;
};

} // namespace

std::string writePresentation(const Presentation& presentation) {
    return DocumentWriter(presentation).write();
}

} // namespace simulator::powerpoint
