#include "automation/Value.h"

#include "automation/Error.h"
#include "automation/Object.h"
#include "automation/Text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace automation {

namespace {

template <typename... Cases> struct Overloaded : Cases... { using Cases::operator()...; };
template <typename... Cases> Overloaded(Cases...) -> Overloaded<Cases...>;

/// The number that a text writes, blanks around it allowed.
double parse(std::u16string_view text) {
    std::string narrow = toUtf8(text);
    const auto first = narrow.find_first_not_of(' ');
    const auto last = narrow.find_last_not_of(' ');
    if (first == std::string::npos) {
        raise(RunTimeError::TypeMismatch);
    }
    const char* begin = narrow.data() + first;
    if (*begin == '+' && narrow.compare(first, 2, "+-") != 0) {
        ++begin; // from_chars takes no plus
    }
    const char* const end = narrow.data() + last + 1;
    double number = 0;
    const auto [stopped, status] = std::from_chars(begin, end, number);
    if (status == std::errc::result_out_of_range) {
        raise(RunTimeError::Overflow);
    }
    if (status != std::errc() || stopped != end || !std::isfinite(number)) {
        raise(RunTimeError::TypeMismatch);
    }
    return number;
}

ObjectPtr required(const ObjectPtr& object) {
    if (!object) {
        raise(RunTimeError::ObjectNotSet);
    }
    return object;
}

double number(const Value& value);

double defaultNumber(const ObjectPtr& object) {
    return number(required(object)->invoke(defaultMember, Access::GetOrCall, {}));
}

double number(const Value& value) {
    return value.visit(Overloaded{
        [](Empty) { return 0.0; },
        [](Missing) -> double { raise(RunTimeError::TypeMismatch); },
        [](bool truth) { return truth ? -1.0 : 0.0; },
        [](const std::u16string& text) { return parse(text); },
        [](const ObjectPtr& object) { return defaultNumber(object); },
        [](const Array&) -> double { raise(RunTimeError::TypeMismatch); },
        [](const Reference& by) { return number(*by.variable); },
        [](auto plain) { return static_cast<double>(plain); },
    });
}

template <typename Integer> Integer whole(const Value& value) {
    if (value.is<Integer>()) {
        return value.as<Integer>();
    }
    const double rounded = std::nearbyint(number(value));
    const bool fits = rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
    if (!fits) {
        raise(RunTimeError::Overflow);
    }
    return static_cast<Integer>(rounded);
}

template <typename Floating> std::u16string general(Floating number, int digits) {
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, digits);
    return {buffer.data(), end.ptr};
}

} // namespace

// A variant of the standard library may break where memory runs out while it copies; so the copy is made beside it and
// moved in, which cannot fail.
Value::Value(const Value& other) {
    static_assert(std::is_nothrow_move_constructible_v<Storage> && std::is_nothrow_move_assignable_v<Storage>);
    std::visit(
        [this](const auto& held) {
            auto copy = held;
            storage_ = std::move(copy);
        },
        other.storage_);
}

Value& Value::operator=(const Value& other) {
    Value copy(other);
    return *this = std::move(copy);
}

Value Value::reference(Value& variable, Original* original) noexcept {
    const auto* const further = std::get_if<Reference>(&variable.storage_);
    return Value(further != nullptr ? *further : Reference{&variable, original});
}

void Value::write(Value value) {
    if (const auto* const reference = std::get_if<Reference>(&storage_)) {
        *reference->variable = std::move(value);
        if (reference->original != nullptr) {
            reference->original->follow();
        }
    } else {
        *this = std::move(value);
    }
}

template <> bool Value::converted<bool>() const {
    if (is<bool>()) {
        return as<bool>();
    }
    if (is<std::u16string>()) {
        if (equalIgnoringCase(as<std::u16string>(), u"True")) {
            return true;
        }
        if (equalIgnoringCase(as<std::u16string>(), u"False")) {
            return false;
        }
    }
    return number(*this) != 0;
}

template <> std::int16_t Value::converted<std::int16_t>() const {
    return whole<std::int16_t>(*this);
}

template <> std::int32_t Value::converted<std::int32_t>() const {
    return whole<std::int32_t>(*this);
}

template <> float Value::converted<float>() const {
    if (is<float>()) {
        return as<float>();
    }
    const auto single = static_cast<float>(number(*this));
    if (!std::isfinite(single)) {
        raise(RunTimeError::Overflow);
    }
    return single;
}

template <> double Value::converted<double>() const {
    return number(*this);
}

template <> std::u16string Value::converted<std::u16string>() const {
    return visit(Overloaded{
        [](Empty) { return std::u16string(); },
        [](Missing) -> std::u16string { raise(RunTimeError::TypeMismatch); },
        [](bool truth) { return std::u16string(truth ? u"True" : u"False"); },
        [](float single) { return general(single, 7); },
        [](double real) { return general(real, 15); },
        [](const std::u16string& text) { return text; },
        [](const ObjectPtr& object) {
            return required(object)->invoke(defaultMember, Access::GetOrCall, {}).to<std::u16string>();
        },
        [](const Array&) -> std::u16string { raise(RunTimeError::TypeMismatch); },
        [](const Reference& by) { return by.variable->to<std::u16string>(); },
        [](auto integer) { return decimal(integer); },
    });
}

template <> ObjectPtr Value::converted<ObjectPtr>() const {
    if (!isObject()) {
        raise(RunTimeError::ObjectRequired);
    }
    return as<ObjectPtr>();
}

template <> Array Value::converted<Array>() const {
    if (!is<Array>()) {
        raise(RunTimeError::TypeMismatch);
    }
    return as<Array>();
}

std::u16string Value::display() const {
    return visit(Overloaded{
        [](Empty) { return std::u16string(u"Empty"); },
        [](Missing) { return std::u16string(u"Missing"); },
        [](const std::u16string& text) { return u'"' + text + u'"'; },
        [](const ObjectPtr& object) { return std::u16string(object ? u"<object>" : u"Nothing"); },
        [](const Array& elements) {
            std::u16string text;
            for (const Value& element : elements) {
                text += (text.empty() ? u"" : u", ") + element.display();
            }
            return u"Array(" + text + u")";
        },
        [](const Reference& by) { return by.variable->display(); },
        [](auto plain) { return Value(plain).to<std::u16string>(); },
    });
}

} // namespace automation
