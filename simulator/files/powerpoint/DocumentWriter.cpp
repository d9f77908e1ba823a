#include "simulator/files/powerpoint/DocumentWriter.h"

#include "simulator/document/Masters.h"
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
        writeMasters();
        const std::vector<SlideEntry> entries = writeSlides();
        dropSlidesThatAreGone(entries);
        putEntries(document(), slideList::slides, entries);
        writeNotes();
        writePage(presentation_.notesMaster, notesMasterPlace);
        writePage(presentation_.handoutMaster, handoutMasterPlace);
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

    /// What this document says of a sheet; null where it comes from elsewhere.
    [[nodiscard]] const SlideOrigin* originIn(const Slide& sheet) const noexcept {
        const auto* const origin = dynamic_cast<const SlideOrigin*>(sheet.origin.get());
        return origin != nullptr && origin->document == origin_ ? origin : nullptr;
    }

    /// Writes a sheet as an object of its own, or over the one that it was read from.
    WrittenSlide writeSheet(const Slide& sheet, const SlideOrigin* origin, bool isCopy) {
        const SlidePtr master = findMaster(presentation_, sheet);
        return writeSlide(sheet, origin, isCopy, master.get(), {drawings_, fonts_, *origin_, masters_, firstMaster_});
    }

    /// Puts an object behind the others and answers with its number.
    std::uint32_t append(Record record) {
        const std::uint32_t id = objects_.highestId() + 1;
        objects_.append(id, std::move(record));
        return id;
    }

    void writeMasters() {
        std::vector<SlideEntry> entries = entriesIn(document(), slideList::masters);
        firstMaster_ = entries.empty() ? 0 : entries.front().id();
        bool isFirst = true;
        std::set<std::uint32_t> kept;
        for (const SlidePtr& master : presentation_.masters) {
            const SlideOrigin* const origin =
                isBlank() && std::exchange(isFirst, false) ? blankMaster().get() : originIn(*master);
            if (origin == nullptr) {
                entries.push_back(newMaster(*master, entries));
                putEntries(document(), slideList::masters, entries);
                continue;
            }
            kept.insert(origin->object);
            for (const SlideEntry& entry : entries) {
                if (entry.object() == origin->object) {
                    masters_.emplace(master.get(), entry.id());
                }
            }
            if (isBlank() || master->isTouched) {
                *objects_.find(origin->object) = writeSheet(*master, origin, false).record;
            }
        }
        const auto isGone = [&](std::uint32_t object) {
            return origin_->masters.contains(object) && !kept.contains(object);
        };
        if (std::erase_if(entries, [&](const SlideEntry& entry) { return isGone(entry.object()); }) != 0) {
            putEntries(document(), slideList::masters, entries);
            objects_.eraseIf(isGone);
        }
    }

    SlideEntry newMaster(const Slide& master, const std::vector<SlideEntry>& entries) {
        std::uint32_t id = firstMasterId;
        for (const SlideEntry& entry : entries) {
            id = std::max(id, entry.id() + 1);
        }
        SlideEntry entry;
        entry.persist = persistAtom(append(writeSheet(master, nullptr, false).record), 0, id);
        masters_.emplace(&master, id);
        return entry;
    }

    /// Writes a master that the record of the document names at a place.
    void writePage(const SlidePtr& master, std::size_t place) {
        if (!master || !master->isTouched) {
            return;
        }
        const SlideOrigin* const origin = originIn(*master);
        Record written = writeSheet(*master, origin, false).record;
        if (origin != nullptr) {
            *objects_.find(origin->object) = std::move(written);
        } else {
            const std::uint32_t object = append(std::move(written));
            files::putNumber(document().find(type::DocumentAtom)->data, place, object);
        }
    }

    std::vector<SlideEntry> writeSlides() {
        std::vector<SlideEntry> entries;
        std::set<std::uint32_t> written;
        for (const SlidePtr& slide : presentation_.slides()) {
            const SlideOrigin* const origin = originIn(*slide);
            const bool isCopy = origin != nullptr && !written.insert(origin->object).second;
            WrittenSlide now = writeSheet(*slide, origin, isCopy);
            SlideEntry entry = origin == nullptr ? SlideEntry() : origin->entry;
            if (origin == nullptr || isCopy) {
                entry.persist = persistAtom(append(std::move(now.record)), notOutlineAlone, 0);
                entry.texts.clear();
            } else {
                *objects_.find(origin->object) = std::move(now.record);
            }
            noteNotes(*slide, entry.object(), origin == nullptr || isCopy);
            entry.setId(static_cast<std::uint32_t>(slide->id));
            entry.setTexts(std::move(now.outline));
            entries.push_back(std::move(entry));
        }
        return entries;
    }

    /// Writes a notes page over the one that it was read from, or puts it on the list of new ones. One that nobody has
    /// written on needs no record.
    void noteNotes(const Slide& slide, std::uint32_t object, bool isNewSlide) {
        if (!slide.notesPage) {
            return;
        }
        const Slide& page = *slide.notesPage;
        const SlideOrigin* const origin = originIn(page);
        if (origin == nullptr || isNewSlide) {
            if (page.origin || page.isTouched) {
                newNotes_.emplace_back(&slide, object);
            }
            return;
        }
        Record& record = *objects_.find(origin->object);
        if (page.isTouched) {
            record = writeSheet(page, origin, false).record;
        }
        if (Record* const atom = record.find(type::NotesAtom)) {
            files::putNumber(atom->data, notesAtomSlide, static_cast<std::uint32_t>(slide.id));
        }
    }

    void writeNotes() {
        if (newNotes_.empty()) {
            return;
        }
        if (files::numberAt(document().find(type::DocumentAtom)->data, notesMasterPlace) == 0) {
            const SlidePtr master = makeSheet(SheetKind::NotesMaster, presentation_);
            master->isTouched = true;
            writePage(presentation_.notesMaster && presentation_.notesMaster->isTouched ? nullptr : master,
                      notesMasterPlace);
        }
        std::vector<SlideEntry> entries = entriesIn(document(), slideList::notes);
        std::uint32_t id = firstNotesId;
        for (const SlideEntry& entry : entries) {
            id = std::max(id, entry.id() + 1);
        }
        for (const auto& [slide, object] : newNotes_) {
            const Slide& page = *slide->notesPage;
            Record written = writeSheet(page, originIn(page), true).record;
            if (Record* const atom = written.find(type::NotesAtom)) {
                files::putNumber(atom->data, notesAtomSlide, static_cast<std::uint32_t>(slide->id));
            }
            files::putNumber(objects_.find(object)->find(type::SlideAtom)->data, slideAtomNotes, id);
            SlideEntry entry;
            entry.persist = persistAtom(append(std::move(written)), notOutlineAlone, id++);
            entries.push_back(std::move(entry));
        }
        putEntries(document(), slideList::notes, entries);
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

    [[nodiscard]] bool isBlank() const noexcept { return origin_ == blankDocument(); }

    static constexpr std::uint32_t notOutlineAlone = 4;
    static constexpr std::uint32_t firstMasterId = 0x80000000;
    static constexpr std::uint32_t firstNotesId = 256;
    static constexpr std::size_t notesAtomSlide = 0;

    const Presentation& presentation_;
    std::shared_ptr<const PresentationOrigin> origin_;
    PersistObjects objects_;
    drawing::DrawingGroup drawings_;
    text::FontTable fonts_;
    std::map<const Slide*, std::uint32_t> masters_; ///< ids of slide masters and title masters
    std::uint32_t firstMaster_ = 0;
    std::vector<std::pair<const Slide*, std::uint32_t>> newNotes_; ///< of slides, with the objects that these are
};

} // namespace

std::string writePresentation(const Presentation& presentation) {
    return DocumentWriter(presentation).write();
}

} // namespace simulator::powerpoint
