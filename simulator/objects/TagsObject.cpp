#include "simulator/objects/TagsObject.h"

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/MasterObject.h"
#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/ShapeObject.h"

namespace simulator {

namespace {

template <typename Bearer> std::shared_ptr<TagList> tagsOf(const std::shared_ptr<Bearer>& bearer) noexcept {
    return std::shared_ptr<TagList>(bearer, &bearer->tags);
}

} // namespace

TagsObject::TagsObject(ProcessPtr process, const PresentationPtr& presentation)
    : PowerPointObject(std::move(process)), tags_(tagsOf(presentation)), presentation_(presentation),
      bearer_(presentation) {}

TagsObject::TagsObject(ProcessPtr process, const SlidePtr& slide)
    : PowerPointObject(std::move(process)), tags_(tagsOf(slide)), slide_(slide), bearer_(slide) {}

TagsObject::TagsObject(ProcessPtr process, const ShapePtr& shape)
    : PowerPointObject(std::move(process)), tags_(tagsOf(shape)), slide_(shape->slide), bearer_(shape) {}

const automation::MemberTable& TagsObject::members() const {
    using automation::method;
    using automation::property;
    using This = TagsObject;
    static const automation::MemberTable table = commonMembers().with({
        method<&This::item>(u"Item", u"Name").asDefault(),
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::add>(u"Add", u"Name Value"),
        method<&This::remove>(u"Delete", u"Name"),
        method<&This::name>(u"Name", u"Index"),
        method<&This::value>(u"Value", u"Index"),
    });
    return table;
}

bool TagsObject::isSame(const Object& other) const noexcept {
    const auto* const peer = dynamic_cast<const TagsObject*>(&other);
    return peer != nullptr && isSameReference(tags_, peer->tags_);
}

automation::ObjectPtr TagsObject::owner() const {
    const auto toObject = [this]<typename Bearer>(const std::weak_ptr<Bearer>& bearer) -> automation::ObjectPtr {
        if constexpr (std::is_same_v<Bearer, Presentation>) {
            return std::make_shared<PresentationObject>(process(), bearer);
        } else if constexpr (std::is_same_v<Bearer, Slide>) {
            return objectOf(process(), bearer);
        } else {
            return std::make_shared<ShapeObject>(process(), bearer);
        }
    };
    return std::visit(toObject, bearer_);
}

std::int32_t TagsObject::count() const {
    return static_cast<std::int32_t>(simulator::alive(tags_)->all().size());
}

std::u16string TagsObject::item(const std::u16string& name) const {
    return simulator::alive(tags_)->value(name);
}

std::u16string TagsObject::name(std::int32_t index) const {
    const auto tags = simulator::alive(tags_);
    return tags->all()[placeIn(tags->all().size(), index, u"Tags.Name")].first;
}

std::u16string TagsObject::value(std::int32_t index) const {
    const auto tags = simulator::alive(tags_);
    return tags->all()[placeIn(tags->all().size(), index, u"Tags.Value")].second;
}

void TagsObject::add(const std::u16string& name, const std::u16string& value) {
    change([&](TagList& tags) { tags.add(name, value); });
}

void TagsObject::remove(const std::u16string& name) {
    change([&](TagList& tags) { tags.remove(name); });
}

template <typename Change> void TagsObject::change(const Change& change) {
    change(*simulator::alive(tags_));
    if (const SlidePtr slide = slide_.lock()) {
        markChanged(*slide);
    } else if (const PresentationPtr presentation = presentation_.lock()) {
        markChanged(*presentation);
    }
}

} // namespace simulator
