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

} // namespace simulator::powerpoint
