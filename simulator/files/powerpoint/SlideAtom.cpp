#include "simulator/files/powerpoint/SlideAtom.h"

#include "simulator/files/powerpoint/Layouts.h"
#include "simulator/files/records/RecordTypes.h"

namespace simulator::powerpoint {

SlideAtom::SlideAtom(const records::Record& slide) {
    files::ByteReader in(slide.demand(records::type::SlideAtom).data, "the record of a slide's layout");
    layout = readLayout(in);
    master = in.read<std::uint32_t>();
    notes = in.read<std::uint32_t>();
}

namespace {

namespace type = records::type;

constexpr std::uint32_t shapesFlag = 1;
constexpr std::uint32_t backgroundFlag = 4;
constexpr std::size_t flagsInSlideAtom = 20;
constexpr std::size_t flagsInNotesAtom = 4;

/// The place of the flags in the record of a slide or of notes; null where there is none of them.
const std::string* atomOf(const records::Record& sheet, std::size_t& place) noexcept {
    const bool isNotes = sheet.is(type::Notes);
    place = isNotes ? flagsInNotesAtom : flagsInSlideAtom;
    const records::Record* const atom = sheet.find(isNotes ? type::NotesAtom : type::SlideAtom);
    return atom == nullptr || atom->data.size() < place + 4 ? nullptr : &atom->data;
}

} // namespace

Following::Following(const records::Record& sheet) {
    std::size_t place = 0;
    if (const std::string* const atom = atomOf(sheet, place)) {
        const std::uint32_t flags = files::numberAt(*atom, place);
        shapes = (flags & shapesFlag) != 0;
        background = (flags & backgroundFlag) != 0;
    }
}

void putFollowing(records::Record& sheet, bool shapes, bool background) {
    std::size_t place = 0;
    if (atomOf(sheet, place) != nullptr) {
        std::string& atom = sheet.find(sheet.is(type::Notes) ? type::NotesAtom : type::SlideAtom)->data;
        const std::uint32_t others = files::numberAt(atom, place) & ~(shapesFlag | backgroundFlag);
        files::putNumber(atom, place, others | (shapes ? shapesFlag : 0U) | (background ? backgroundFlag : 0U));
    }
}

} // namespace simulator::powerpoint
