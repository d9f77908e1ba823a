#pragma once

#include "simulator/document/Presentation.h"
#include "simulator/files/compound/Storage.h"
#include "simulator/files/powerpoint/PersistObjects.h"
#include "simulator/files/powerpoint/SlideList.h"

#include <set>

namespace simulator::powerpoint {

/// What a file says of a presentation.
class PresentationOrigin final : public Origin {
public:
    compound::Storage file; ///< without what stands in the document's stream
    records::Record userEdit;
    PersistObjects objects;
    std::uint32_t document = 0;      ///< number of the object that is the document
    std::set<std::uint32_t> masters; ///< numbers of the objects that are slide masters and title masters

    bool snapToGrid = true; ///< as read, as all that follows
    float gridDistance = 0;
    float slideWidth = 0;
    float slideHeight = 0;
    ColorScheme colors;
    TagList tags;
    HeadersFooters onSlides;
    HeadersFooters onPages;
    bool areOnTitleSlides = true;
    SlideShowSetup slideShow;
};

/// What a file says of a slide, a master or a notes page.
class SlideOrigin final : public Origin {
public:
    OriginPtr document;
    std::uint32_t object = 0;
    std::uint32_t drawing = 0;
    SlideEntry entry;

    PpSlideLayout layout = ppLayoutBlank; ///< as read, as all that follows
    std::u16string name;
    TagList tags;
    bool followsMasterBackground = true;
    bool displaysMasterShapes = true;
    std::optional<HeadersFooters> headersFooters;
    Transition transition;
    std::weak_ptr<const Slide> master; ///< of a slide
};

} // namespace simulator::powerpoint
