#include "tests/automation/com/Sample.h"

#include "automation/Elements.h"
#include "automation/Text.h"
#include "tests/automation/com/TestServer.h"

#include <windows.h>

namespace tests {

using automation::MemberTable;
using automation::method;
using automation::ObjectPtr;
using automation::property;

const MemberTable& Sample::members() const {
    static const MemberTable table{
        property<&Sample::Number, &Sample::PutNumber>(u"Number"),
        property<&Sample::Target, &Sample::PutTarget>(u"Target"),
        property<&Sample::Child>(u"Child"),
        method<&Sample::Item>(u"Item").asDefault(),
        method<&Sample::Echo>(u"Echo"),
        method<&Sample::Add>(u"Add", u"Left Right"),
        method<&Sample::Change>(u"Change"),
        method<&Sample::Fail>(u"Fail"),
        method<&Sample::FailStrangely>(u"FailStrangely"),
        method<&Sample::Die>(u"Die"),
        method<&Sample::BeBusy>(u"BeBusy"),
        property<&Sample::Elements>(automation::newEnum.text()),
    };
    return table;
}

ObjectPtr Sample::Child() {
    if (!child_) {
        child_ = std::make_shared<Sample>();
    }
    return child_;
}

std::u16string Sample::Item(std::int32_t index) const {
    return u"Élément " + automation::decimal(index);
}

ObjectPtr Sample::Elements() const {
    class Items final : public automation::Elements {
    public:
        explicit Items(std::int32_t count) noexcept : left_(count) {}
        automation::Value next() override {
            return left_ == 0 ? automation::Value(automation::Missing()) : automation::Value(left_--);
        }

    private:
        std::int32_t left_;
    };
    return std::make_shared<Items>(number_);
}

std::int32_t Sample::Add(std::int32_t left, std::optional<std::int32_t> right) const {
    return left + right.value_or(100);
}

void Sample::Fail(std::int32_t number) const {
    throw automation::Error(number, source, description, helpFile, helpContext);
}

void Sample::Die() const {
    TerminateProcess(GetCurrentProcess(), 1);
}

void Sample::BeBusy(std::int32_t milliseconds) const {
    refuseCallsFor(milliseconds);
}

} // namespace tests
