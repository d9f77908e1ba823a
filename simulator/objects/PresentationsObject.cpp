#include "simulator/objects/PresentationsObject.h"

#include "simulator/objects/CollectionLookup.h"

namespace simulator {

const automation::MemberTable& PresentationsObject::members() const {
    using automation::method;
    using automation::property;
    using This = PresentationsObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
        method<&This::add>(u"Add", u"WithWindow"),
        method<&This::open>(u"Open", u"FileName ReadOnly Untitled WithWindow"),
    });
    return table;
}

std::int32_t PresentationsObject::count() const {
    return static_cast<std::int32_t>(process()->presentations().size());
}

std::shared_ptr<PresentationObject> PresentationsObject::item(const automation::Value& index) const {
    const auto& open = process()->presentations();
    const auto nameAt = [&](std::size_t place) { return open[place]->name; };
    const std::size_t place = placeIn(open.size(), index, u"Presentations.Item", nameAt);
    return std::make_shared<PresentationObject>(process(), open[place]);
}

std::shared_ptr<PresentationObject> PresentationsObject::add(std::optional<MsoTriState> withWindow) const {
    return std::make_shared<PresentationObject>(process(), process()->create(withWindow != msoFalse));
}

std::shared_ptr<PresentationObject> PresentationsObject::open(const std::u16string& fileName,
                                                              std::optional<MsoTriState> readOnly,
                                                              std::optional<MsoTriState> untitled,
                                                              std::optional<MsoTriState> withWindow) const {
    const PresentationPtr presentation =
        process()->open(fileName, readOnly.value_or(msoFalse) != msoFalse, untitled.value_or(msoFalse) != msoFalse,
                        withWindow != msoFalse);
    return std::make_shared<PresentationObject>(process(), presentation);
}

} // namespace simulator
