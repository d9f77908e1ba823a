#include "simulator/files/powerpoint/SlideAtom.h"

#include "simulator/files/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

namespace simulator::powerpoint {

SlideAtom::SlideAtom(const records::Record& slide) {
    files::ByteReader in(slide.demand(records::type::SlideAtom).data, "the record of a slide's layout");
    geometry = in.read<std::int32_t>();
    in.skip(slideAtomMaster - in.place());
    master = in.read<std::uint32_t>();
    notes = in.read<std::uint32_t>();
}

} // namespace simulator::powerpoint
