#include "simulator/files/PowerPointFormat.h"

#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"

namespace simulator {

PresentationPtr PowerPointFormat::load(std::string_view bytes) const {
    return powerpoint::readPresentation(bytes);
}

std::string PowerPointFormat::save(const Presentation& presentation) const {
    return powerpoint::writePresentation(presentation);
}

} // namespace simulator
