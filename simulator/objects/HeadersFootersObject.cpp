#include "simulator/objects/HeadersFootersObject.h"

#include "simulator/document/HeadersFootersOf.h"
#include "simulator/objects/HeaderFooterObject.h"
#include "simulator/objects/MasterObject.h"

namespace simulator {

const automation::MemberTable& HeadersFootersObject::members() const {
    using automation::method;
    using automation::property;
    using This = HeadersFootersObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::part<&HeadersFooters::date>>(u"DateAndTime"),
        property<&This::part<&HeadersFooters::number>>(u"SlideNumber"),
        property<&This::header>(u"Header"),
        property<&This::part<&HeadersFooters::footer>>(u"Footer"),
        property<&This::displayOnTitleSlide, &This::setDisplayOnTitleSlide>(u"DisplayOnTitleSlide"),
        method<&This::clear>(u"Clear"),
    });
    return table;
}

automation::ObjectPtr HeadersFootersObject::owner() const {
    return objectOf(process(), nodes().first());
}

std::shared_ptr<HeaderFooterObject> HeadersFootersObject::header() const {
    if (!isPage(nodes().first()->kind)) {
        errors::invalidRequest(u"HeadersFooters.Header", u"Les diapositives n'ont pas d'en-tête.");
    }
    return make(&HeadersFooters::header);
}

MsoTriState HeadersFootersObject::displayOnTitleSlide() const {
    return triState(simulator::alive(nodes().first()->presentation)->areOnTitleSlides);
}

void HeadersFootersObject::setDisplayOnTitleSlide(MsoTriState displayed) {
    nodes().change([displayed](const Slide& sheet) {
        simulator::alive(sheet.presentation)->areOnTitleSlides = displayed != msoFalse;
    });
}

void HeadersFootersObject::clear() {
    nodes().change([](Slide& sheet) { clearHeadersFooters(*simulator::alive(sheet.presentation), sheet); });
}

std::shared_ptr<HeaderFooterObject> HeadersFootersObject::make(HeaderFooter HeadersFooters::*which) const {
    return std::make_shared<HeaderFooterObject>(process(), nodes(), which);
}

} // namespace simulator
