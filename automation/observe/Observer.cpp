#include "automation/observe/Observer.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace automation {

namespace {

class Observed final : public Object {
public:
    Observed(ObjectPtr inner, ObserverPtr observer) : inner_(std::move(inner)), observer_(std::move(observer)) {}

    Value invoke(const Name& name, Access access, std::span<Value> arguments) override {
        const Crossing crossing{Border::Automation, name.scope(), name.text(), access, arguments};
        std::vector<Value> passed(arguments.begin(), arguments.end());
        std::transform(passed.begin(), passed.end(), passed.begin(), strip);
        const Value result = observer_->around(crossing, [&] { return inner_->invoke(name, access, passed); });
        return wrap(result);
    }

    [[nodiscard]] bool isSame(const Object& other) const noexcept override {
        const auto* const observed = dynamic_cast<const Observed*>(&other);
        return inner_->isSame(observed != nullptr ? *observed->inner_ : other);
    }

    [[nodiscard]] const ObjectPtr& inner() const noexcept { return inner_; }

private:
    /// The observed object must not meet its own observers among its arguments.
    [[nodiscard]] static Value strip(const Value& value) {
        if (value.variable() == nullptr && value.isObject()) {
            return {unobserved(value.as<ObjectPtr>())};
        }
        return value;
    }

    [[nodiscard]] Value wrap(const Value& value) const {
        return value.isObject() ? Value(observed(value.as<ObjectPtr>(), observer_)) : value;
    }

    ObjectPtr inner_;
    ObserverPtr observer_;
};

} // namespace

std::u16string_view nameOf(Border border) noexcept {
    switch (border) {
    case Border::Automation: return u"automation";
    case Border::Registry: return u"registry";
    case Border::Window: return u"window";
    case Border::File: return u"file";
    case Border::Keyboard: return u"keyboard";
    case Border::Locale: return u"locale";
    }
    return u"";
}

std::u16string Crossing::display() const {
    std::u16string text(target);
    text += (text.empty() || member.empty()) ? u"" : u".";
    text += member;
    const auto shown = access == Access::Put ? arguments.first(arguments.size() - 1) : arguments;
    if (!shown.empty()) {
        text += u'(';
        for (std::size_t i = 0; i < shown.size(); ++i) {
            text += (i == 0 ? u"" : u", ") + shown[i].display();
        }
        text += u')';
    }
    return access == Access::Put ? text + u" = " + arguments.back().display() : text;
}

ObjectPtr observed(const ObjectPtr& object, const ObserverPtr& observer) {
    return object ? std::make_shared<Observed>(object, observer) : nullptr;
}

ObjectPtr unobserved(const ObjectPtr& object) {
    if (const auto wrapper = std::dynamic_pointer_cast<Observed>(object)) {
        return unobserved(wrapper->inner());
    }
    return object;
}

} // namespace automation
