#include "simulator/objects/SlidesObject.h"

#include "simulator/document/SlideLayout.h"
#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/SlideObject.h"
#include "simulator/objects/SlideRangeObject.h"

#include <algorithm>

namespace simulator {

const automation::MemberTable& SlidesObject::members() const {
    using automation::method;
    using automation::property;
    using This = SlidesObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
        method<&This::findBySlideId>(u"FindBySlideID", u"SlideID"),
        method<&This::add>(u"Add", u"Index Layout"),
        method<&This::insertFromFile>(u"InsertFromFile", u"FileName Index SlideStart SlideEnd"),
        method<&This::range>(u"Range", u"Index"),
        method<&This::paste>(u"Paste", u"Index"),
    });
    return table;
}

automation::ObjectPtr SlidesObject::owner() const {
    return std::make_shared<PresentationObject>(process(), node());
}

std::shared_ptr<SlideObject> SlidesObject::item(const automation::Value& index) const {
    return std::make_shared<SlideObject>(process(), elementAt(node()->slides(), index, u"Slides.Item"));
}

std::shared_ptr<SlideRangeObject> SlidesObject::range(const std::optional<automation::Value>& index) const {
    return std::make_shared<SlideRangeObject>(process(), elementsAt(node()->slides(), index, u"Slides.Range"));
}

std::shared_ptr<SlideObject> SlidesObject::findBySlideId(std::int32_t slideId) const {
    const PresentationPtr presentation = node();
    const auto found = std::find_if(presentation->slides().begin(), presentation->slides().end(),
                                    [slideId](const SlidePtr& slide) { return slide->id == slideId; });
    if (found == presentation->slides().end()) {
        errors::invalidRequest(u"Slides.FindBySlideID", u"Aucune diapositive ne porte cet identificateur.");
    }
    return std::make_shared<SlideObject>(process(), *found);
}

std::shared_ptr<SlideObject> SlidesObject::add(std::int32_t index, PpSlideLayout layout) {
    const PresentationPtr presentation = node();
    const std::size_t place = placeIn(presentation->slides().size() + 1, index, u"Slides.Add");
    const Layout* const known = findLayout(layout);
    if (known == nullptr) {
        errors::invalidValue(u"Slides.Add");
    }
    const auto slide = std::make_shared<Slide>();
    presentation->insert(slide, place);
    layOut(*slide, *known);
    markChanged(*presentation);
    return std::make_shared<SlideObject>(process(), slide);
}

std::int32_t SlidesObject::insertFromFile(const std::u16string& fileName, std::int32_t index,
                                          std::optional<std::int32_t> slideStart,
                                          std::optional<std::int32_t> slideEnd) {
    const std::size_t place = placeIn(node()->slides().size() + 1, index + 1, u"Slides.InsertFromFile");
    const PresentationPtr file = process()->store().load(process()->fullPath(fileName));
    const std::size_t count = file->slides().size();
    const std::size_t first = placeIn(count, slideStart.value_or(1), u"Slides.InsertFromFile");
    const std::int32_t end = slideEnd.value_or(-1);
    const std::size_t last = end == -1 ? count - 1 : placeIn(count, end, u"Slides.InsertFromFile");
    std::vector<SlidePtr> slides;
    for (std::size_t i = first; i <= last; ++i) {
        slides.push_back(file->slides()[i]);
    }
    return static_cast<std::int32_t>(insertCopies(slides, place).size());
}

std::shared_ptr<SlideRangeObject> SlidesObject::paste(std::optional<std::int32_t> index) {
    const std::size_t behindLast = node()->slides().size() + 1;
    const std::size_t place = index ? placeIn(behindLast, *index, u"Slides.Paste") : behindLast - 1;
    if (process()->clipboard().slides.empty()) {
        errors::invalidRequest(u"Slides.Paste", u"Le Presse-papiers ne contient pas de diapositive.");
    }
    return std::make_shared<SlideRangeObject>(process(), insertCopies(process()->clipboard().slides, place));
}

std::vector<SlidePtr> SlidesObject::insertCopies(const std::vector<SlidePtr>& slides, std::size_t place) {
    const PresentationPtr presentation = node();
    std::vector<SlidePtr> copies;
    for (const SlidePtr& slide : slides) {
        copies.push_back(slide->clone());
        presentation->insert(copies.back(), place++);
    }
    if (!copies.empty()) {
        markChanged(*presentation);
    }
    return copies;
}

} // namespace simulator
