#include "simulator/files/powerpoint/NotesWriter.h"

#include "simulator/document/Masters.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/powerpoint/MasterWriter.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::powerpoint {

using records::Record;
namespace type = records::type;

namespace {

constexpr std::uint32_t firstNotesId = 256;

void setSlideOf(Record& notes, const Slide& slide) {
    constexpr std::size_t slidePlace = 0;
    if (Record* const atom = notes.find(type::NotesAtom)) {
        files::putNumber(atom->data, slidePlace, static_cast<std::uint32_t>(slide.id));
    }
}

} // namespace

void NotesWriter::write(const Slide& slide, std::uint32_t object, bool isNewSlide) {
    if (!slide.notesPage) {
        return;
    }
    const Slide& page = *slide.notesPage;
    const SlideOrigin* const origin = document_.originIn(page);
    if (origin == nullptr || isNewSlide) {
        if (page.origin || page.isTouched) {
            new_.emplace_back(&slide, object);
        }
        return;
    }
    Record& record = *document_.objects().find(origin->object);
    if (page.isTouched) {
        record = document_.writeSheet(page, origin).record;
    }
    setSlideOf(record, slide);
}

void NotesWriter::finish() {
    if (new_.empty()) {
        return;
    }
    const Presentation& presentation = document_.presentation();
    const bool hasMaster = presentation.notesMaster && presentation.notesMaster->isTouched;
    if (!hasMaster && files::numberAt(document_.record().find(type::DocumentAtom)->data, notesMasterPlace) == 0) {
        const SlidePtr master = makeSheet(SheetKind::NotesMaster, presentation);
        master->isTouched = true;
        writePageMaster(document_, master, notesMasterPlace);
    }
    std::vector<SlideEntry> entries = entriesIn(document_.record(), slideList::notes);
    std::uint32_t id = firstNotesId;
    for (const SlideEntry& entry : entries) {
        id = std::max(id, entry.id() + 1);
    }
    for (const auto& [slide, object] : new_) {
        entries.push_back(writeNew(*slide, object, id++));
    }
    putEntries(document_.record(), slideList::notes, entries);
}

SlideEntry NotesWriter::writeNew(const Slide& slide, std::uint32_t object, std::uint32_t id) {
    const Slide& page = *slide.notesPage;
    Record written = document_.writeSheet(page, document_.originIn(page), true).record;
    setSlideOf(written, slide);
    files::putNumber(document_.objects().find(object)->find(type::SlideAtom)->data, slideAtomNotes, id);
    SlideEntry entry;
    entry.persist = persistAtom(document_.append(std::move(written)), notOutlineAlone, id);
    return entry;
}

} // namespace simulator::powerpoint
