#include "automation/observe/Observer.h"

#include <utility>
#include <vector>

namespace automation {

namespace {

class Observed final : public Object {
public:
    Observed(ObjectPtr inner, ObserverPtr observer) : inner_(std::move(inner)), observer_(std::move(observer)) {}

    Value invoke(const Name& name, Access access, std::span<Value> arguments) override {
        const Crossing crossing{Border::Automation, name.scope(),      name.text(), access,
                                arguments,          name.parameters(), inner_.get()};
        return wrap(observer_->around(crossing, [&] { return pass(name, access, arguments); }));
    }

    [[nodiscard]] bool isSame(const Object& other) const noexcept override {
        const auto* const observed = dynamic_cast<const Observed*>(&other);
        return observed != nullptr ? automation::isSame(inner_, observed->inner_) : inner_->isSame(other);
    }

    [[nodiscard]] std::u16string className() const override { return inner_->className(); }

    [[nodiscard]] const ObjectPtr& inner() const noexcept { return inner_; }

private:
    /// The observed object must not meet its own observers among its arguments; what it writes back is observed.
    Value pass(const Name& name, Access access, std::span<Value> arguments) {
        std::vector<Value> variables(arguments.size());
        std::vector<Value> passed(arguments.size());
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            const Value* const variable = arguments[i].variable();
            variables[i] = strip(variable != nullptr ? *variable : arguments[i]);
            passed[i] = variable != nullptr ? Value::reference(variables[i]) : variables[i];
        }
        const auto writeBack = [&] {
            for (std::size_t i = 0; i < arguments.size(); ++i) {
                Value* const variable = arguments[i].variable();
                if (variable != nullptr && !isLeft(*variable, variables[i])) {
                    *variable = wrap(variables[i]);
                }
            }
        };
        try {
            Value result = inner_->invoke(name, access, passed);
            writeBack();
            return result;
        } catch (...) {
            writeBack();
            throw;
        }
    }

    /// True where a variable still holds the object that it held.
    [[nodiscard]] static bool isLeft(const Value& before, const Value& after) {
        return before.isObject() && after.isObject() && unobserved(before.as<ObjectPtr>()) == after.as<ObjectPtr>();
    }

    [[nodiscard]] static Value strip(const Value& value) {
        return value.isObject() ? Value(unobserved(value.as<ObjectPtr>())) : value;
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
    text += text.empty() ? u"" : u".";
    text += member.empty() ? u"(default)" : member;
    const bool writes = access == Access::Put && !arguments.empty();
    const auto shown = writes ? arguments.first(arguments.size() - 1) : arguments;
    if (!shown.empty()) {
        text += u'(';
        const std::size_t firstNamed = shown.size() - parameters.size();
        for (std::size_t i = 0; i < shown.size(); ++i) {
            text += i == 0 ? u"" : u", ";
            text += i < firstNamed ? u"" : std::u16string(parameters[i - firstNamed]) + u":=";
            text += shown[i].display();
        }
        text += u')';
    }
    return writes ? text + u" = " + arguments.back().display() : text;
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
