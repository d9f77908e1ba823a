#include "simulator/objects/PowerPointObject.h"

#include "automation/LateBound.h"
#include "simulator/objects/ApplicationObject.h"

#include <typeinfo>

namespace simulator {

namespace {

class ItemsByPlace final : public automation::Elements {
public:
    /// `member` must outlive this object.
    ItemsByPlace(automation::ObjectPtr collection, std::u16string_view member) noexcept
        : collection_(std::move(collection)), member_(member) {}

    automation::Value next() override {
        if (last_ >= collection_.get(u"Count").to<std::int32_t>()) {
            return automation::Missing();
        }
        return collection_.call(member_, ++last_);
    }

private:
    automation::LateBound collection_;
    std::u16string_view member_;
    std::int32_t last_ = 0;
};

} // namespace

std::shared_ptr<automation::Elements> PowerPointObject::elementsBy(std::u16string_view member) {
    return std::make_shared<ItemsByPlace>(shared_from_this(), member);
}

const automation::MemberTable& PowerPointObject::commonMembers() {
    static const automation::MemberTable table{
        automation::property<&PowerPointObject::application>(u"Application"),
        automation::property<&PowerPointObject::owner>(u"Parent"),
    };
    return table;
}

const automation::MemberTable& PowerPointObject::officeMembers() {
    static const automation::MemberTable table =
        commonMembers().with({automation::property<&PowerPointObject::creator>(u"Creator")});
    return table;
}

automation::ObjectPtr PowerPointObject::application() const {
    return std::make_shared<ApplicationObject>(process_);
}

automation::ObjectPtr PowerPointObject::owner() const {
    return application();
}

std::u16string PowerPointObject::className() const {
    // However a compiler decorates the name, the class is the run of letters before the last "Object".
    const std::string decorated = typeid(*this).name();
    const std::size_t end = decorated.rfind("Object");
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    std::size_t start = end;
    while (start > 0 && isLetter(decorated[start - 1])) {
        --start;
    }
    return {decorated.begin() + static_cast<std::ptrdiff_t>(start),
            decorated.begin() + static_cast<std::ptrdiff_t>(end)};
}

} // namespace simulator
