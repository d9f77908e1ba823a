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

} // namespace

Value apply(char16_t sign, const Value& left, const Value& right) {
    if (sign == u'&' || (sign == u'+' && isText(left) && isText(right))) {
        return left.to<std::u16string>() + right.to<std::u16string>();
    }
    if (isWhole(left) && isWhole(right)) {
        const std::int64_t a = left.to<std::int32_t>();
        const std::int64_t b = right.to<std::int32_t>();
        return wholeResult(sign == u'+' ? a + b : a - b);
    }
    const double a = left.to<double>();
    const double b = right.to<double>();
    return sign == u'+' ? a + b : a - b;
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
