#pragma once

#include "simulator/document/Constants.h"
#include "simulator/files/records/Record.h"

namespace simulator::powerpoint {

/// What stands in the record of a slide or of a master.
struct SlideAtom {
    explicit SlideAtom(const records::Record& slide);

    PpSlideLayout layout = ppLayoutBlank;
    std::uint32_t master = 0; ///< the id of its master in the list of masters
    std::uint32_t notes = 0;  ///< the id of its notes in the list of notes, 0 where it has none
};

/// What a slide, a master or a notes page takes over from its master.
struct Following {
    explicit Following(const records::Record& sheet);

    bool shapes = true;
    bool background = true;
};
/// Writes it into the record, where it has a place for it.
void putFollowing(records::Record& sheet, bool shapes, bool background);

/// Places of members in the record.
inline constexpr std::size_t slideAtomMaster = 12;
inline constexpr std::size_t slideAtomNotes = 16;
inline constexpr std::size_t slideAtomLayoutLength = 12;

} // namespace simulator::powerpoint
