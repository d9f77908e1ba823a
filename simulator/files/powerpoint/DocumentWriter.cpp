#include "simulator/files/powerpoint/DocumentWriter.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/powerpoint/ColorSchemeAtom.h"
#include "simulator/files/powerpoint/DocumentSettings.h"
#include "simulator/files/powerpoint/MasterWriter.h"
#include "simulator/files/powerpoint/NotesWriter.h"
#include "simulator/files/powerpoint/PersistWriter.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/SlideList.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <set>

namespace simulator::powerpoint {

using records::Record;
namespace type = records::type;

namespace {

std::vector<SlideEntry> writeSlides(WrittenDocument& document, NotesWriter& notes) {
    std::vector<SlideEntry> entries;
    std::set<std::uint32_t> written;
    for (const SlidePtr& slide : document.presentation().slides()) {
        const SlideOrigin* const origin = document.originIn(*slide);
        const bool isCopy = origin != nullptr && !written.insert(origin->object).second;
        const bool isNew = origin == nullptr || isCopy;
        WrittenSlide now = document.writeSheet(*slide, origin, isCopy);
        SlideEntry entry = origin == nullptr ? SlideEntry() : origin->entry;
        if (isNew) {
            entry.persist = persistAtom(document.append(std::move(now.record)), notOutlineAlone, 0);
            entry.texts.clear();
        } else {
            *document.objects().find(origin->object) = std::move(now.record);
        }
        notes.write(*slide, entry.object(), isNew);
        entry.setId(static_cast<std::uint32_t>(slide->id));
        entry.setTexts(std::move(now.outline));
        entries.push_back(std::move(entry));
    }
    return entries;
}

/// Slides that were deleted leave with their notes.
void dropSlidesThatAreGone(WrittenDocument& document, const std::vector<SlideEntry>& entries) {
    std::set<std::uint32_t> kept;
    for (const SlideEntry& entry : entries) {
        kept.insert(entry.object());
    }
    std::set<std::uint32_t> gone;
    std::set<std::uint32_t> goneNotes;
    for (const SlideEntry& entry : entriesIn(document.record(), slideList::slides)) {
        const Record* const slide = kept.contains(entry.object()) ? nullptr : document.objects().find(entry.object());
        if (slide == nullptr || !slide->is(type::Slide)) {
            continue;
        }
        gone.insert(entry.object());
        if (const std::uint32_t notes = SlideAtom(*slide).notes; notes != 0) {
            goneNotes.insert(notes);
        }
    }
    std::vector<SlideEntry> notes = entriesIn(document.record(), slideList::notes);
    const auto isGone = [&](const SlideEntry& entry) { return goneNotes.contains(entry.id()); };
    for (const SlideEntry& entry : notes) {
        if (isGone(entry)) {
            gone.insert(entry.object());
        }
    }
    if (std::erase_if(notes, isGone) != 0) {
        putEntries(document.record(), slideList::notes, notes);
    }
    document.objects().eraseIf([&](std::uint32_t id) { return gone.contains(id); });
}

/// Masters and slides that have the document's colours take the new ones.
void writeColors(WrittenDocument& document) {
    const std::string before = colorBytes(document.origin().colors);
    const std::string now = colorBytes(document.presentation().colors);
    const std::string usual = colorBytes({});
    document.objects().forEach([&](std::uint32_t id, Record& record) {
        Record* const atom = record.find(type::ColorSchemeAtom, shapesSchemeInstance);
        const bool isFresh = document.origin().objects.find(id) == nullptr && atom != nullptr && atom->data == usual;
        if (atom != nullptr && (isFresh || (before != now && atom->data == before))) {
            atom->data = now;
        }
    });
}

/// The record of the last edit, which names a slide that was shown.
Record lastEdit(const WrittenDocument& document) {
    Record edit = document.origin().userEdit;
    const auto& slides = document.presentation().slides();
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

} // namespace

std::string writePresentation(const Presentation& presentation) {
    WrittenDocument document(presentation);
    NotesWriter notes(document);
    writeMasters(document);
    const std::vector<SlideEntry> slides = writeSlides(document, notes);
    dropSlidesThatAreGone(document, slides);
    putEntries(document.record(), slideList::slides, slides);
    notes.finish();
    writePageMaster(document, presentation.notesMaster, notesMasterPlace);
    writePageMaster(document, presentation.handoutMaster, handoutMasterPlace);
    writeSettings(document.record(), presentation, document.origin());
    writeColors(document);
    document.writeTotals();
    return writeObjects(document.objects(), lastEdit(document), document.origin());
}

} // namespace simulator::powerpoint
