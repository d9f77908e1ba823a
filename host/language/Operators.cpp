#include "host/language/Operators.h"

#include "automation/Error.h"
#include "automation/Object.h"

#include <algorithm>
#include <limits>

namespace host::language {

namespace {

using automation::ObjectPtr;
using automation::RunTimeError;
using automation::Value;

bool isText(const Value& value) {
    return value.is<std::u16string>();
}

bool isWhole(const Value& value) {
    return value.is<std::int32_t>() || value.is<std::int16_t>() || value.is<bool>() || value.isEmpty();
}

Value wholeResult(std::int64_t number) {
    if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max()) {
        automation::raise(RunTimeError::Overflow);
    }
    return static_cast<std::int32_t>(number);
}

Value plainValue(const Value& value) {
    if (!value.isObject()) {
        return value;
    }
    if (!value.as<ObjectPtr>()) {
        automation::raise(RunTimeError::ObjectNotSet);
    }
    return value.as<ObjectPtr>()->invoke(automation::defaultMember, automation::Access::GetOrCall, {});
}

Value wholeOf(Operator sign, std::int64_t a, std::int64_t b) {
    switch (sign) {
    case Operator::Add: return wholeResult(a + b);
    case Operator::Subtract: return wholeResult(a - b);
    case Operator::Multiply: return wholeResult(a * b);
    default: break;
    }
    if (b == 0) {
        automation::raise(RunTimeError::DivisionByZero);
    }
    return wholeResult(sign == Operator::DivideWhole ? a / b : a % b);
}

Value realOf(Operator sign, double a, double b) {
    switch (sign) {
    case Operator::Add: return a + b;
    case Operator::Subtract: return a - b;
    case Operator::Multiply: return a * b;
    default: break;
    }
    if (b == 0) {
        automation::raise(RunTimeError::DivisionByZero);
    }
    return a / b;
}

Value reckoned(Operator sign, const Value& left, const Value& right) {
    if (sign == Operator::Add && isText(left) && isText(right)) {
        return left.as<std::u16string>() + right.as<std::u16string>();
    }
    const bool areWhole = isWhole(left) && isWhole(right) && sign != Operator::Divide;
    if (areWhole || sign == Operator::Modulo || sign == Operator::DivideWhole) {
        return wholeOf(sign, left.to<std::int32_t>(), right.to<std::int32_t>());
    }
    return realOf(sign, left.to<double>(), right.to<double>());
}

Value combined(Operator sign, const Value& left, const Value& right) {
    if (left.is<bool>() && right.is<bool>()) {
        return sign == Operator::And ? left.as<bool>() && right.as<bool>() : left.as<bool>() || right.as<bool>();
    }
    const auto a = left.to<std::int32_t>();
    const auto b = right.to<std::int32_t>();
    return sign == Operator::And ? a & b : a | b;
}

/// -1, 0 or 1.
template <typename T> int order(const T& left, const T& right) {
    return left < right ? -1 : left == right ? 0 : 1;
}

int orderOf(const Value& left, const Value& right) {
    if ((isText(left) || left.isEmpty()) && (isText(right) || right.isEmpty()) &&
        !(left.isEmpty() && right.isEmpty())) {
        return order(left.to<std::u16string>(), right.to<std::u16string>());
    }
    if (left.is<float>() || right.is<float>()) {
        return order(left.to<float>(), right.to<float>());
    }
    return order(left.to<double>(), right.to<double>());
}

bool holds(Operator sign, const Value& left, const Value& right) {
    const int order = orderOf(left, right);
    switch (sign) {
    case Operator::Equal: return order == 0;
    case Operator::NotEqual: return order != 0;
    case Operator::Less: return order < 0;
    case Operator::LessOrEqual: return order <= 0;
    case Operator::Greater: return order > 0;
    default: return order >= 0;
    }
}

} // namespace

Value apply(Operator sign, const Value& left, const Value& right) {
    switch (sign) {
    case Operator::Is: return automation::isSame(left.to<ObjectPtr>(), right.to<ObjectPtr>());
    case Operator::And:
    case Operator::Or: return combined(sign, plainValue(left), plainValue(right));
    case Operator::Join: return left.to<std::u16string>() + right.to<std::u16string>();
    case Operator::Add:
    case Operator::Subtract:
    case Operator::Multiply:
    case Operator::Divide:
    case Operator::DivideWhole:
    case Operator::Modulo: return reckoned(sign, plainValue(left), plainValue(right));
    default: return holds(sign, plainValue(left), plainValue(right));
    }
}

Value apply(Operator sign, const Value& operand) {
    if (sign == Operator::Negate) {
        return apply(Operator::Subtract, Value(std::int32_t(0)), operand);
    }
    const Value value = plainValue(operand);
    return value.is<bool>() ? Value(!value.as<bool>()) : Value(~value.to<std::int32_t>());
}

Value plainNumber(const Value& value) {
    const Value plain = plainValue(value);
    return isWhole(plain) ? Value(plain.to<std::int32_t>()) : Value(plain.to<double>());
}

bool areEqual(const Value& left, const Value& right) {
    if (left.isObject() && right.isObject()) {
        return automation::isSame(left.as<ObjectPtr>(), right.as<ObjectPtr>());
    }
    if (left.isObject() || right.isObject()) {
        return areEqual(plainValue(left), plainValue(right));
    }
    if (isText(left) || isText(right)) {
        return isText(left) && isText(right) && left.as<std::u16string>() == right.as<std::u16string>();
    }
    if (left.is<float>() || right.is<float>()) {
        return left.to<float>() == right.to<float>();
    }
    return left.to<double>() == right.to<double>();
}

Value colorOf(std::span<const Value> parts) {
    if (parts.size() != 3) {
        automation::raise(RunTimeError::WrongNumberOfArguments);
    }
    const auto strength = [&](std::size_t place) {
        const auto part = parts[place].to<std::int32_t>();
        if (part < 0) {
            automation::raise(RunTimeError::InvalidProcedureCall);
        }
        return std::min(part, 255);
    };
    return strength(0) + strength(1) * 0x100 + strength(2) * 0x10000;
}

} // namespace host::language
