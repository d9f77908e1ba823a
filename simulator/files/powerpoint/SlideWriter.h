#pragma once

#include "simulator/files/drawing/DrawingGroup.h"
#include "simulator/files/powerpoint/Origins.h"
#include "simulator/files/text/FontTable.h"

#include <map>

namespace simulator::powerpoint {

/// What the slides of a document are written against.
struct SlideTarget {
    drawing::DrawingGroup& drawings;
    text::FontTable& fonts;
    const PresentationOrigin& document;
    const std::map<const Slide*, std::uint32_t>& masters; ///< ids of slide masters and title masters
    std::uint32_t master;                                 ///< the id of the master of new slides that name none
};

/// A slide as it is to be saved.
struct WrittenSlide {
    records::Record record;
    std::vector<std::vector<records::Record>> outline;
};

/// Writes a slide, a master or a notes page over what it was read from; `origin` is null for a new one. A copy is
/// written over what the other one was read from, but with a drawing of its own and without notes. `master` is what it
/// follows, null for what follows none.
[[nodiscard]] WrittenSlide writeSlide(const Slide& slide, const SlideOrigin* origin, bool isCopy, const Slide* master,
                                      const SlideTarget& target);

/// Number of the records of shapes in a record.
[[nodiscard]] std::size_t countShapeRecords(const records::Record& record) noexcept;

} // namespace simulator::powerpoint
