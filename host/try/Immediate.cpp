#include "host/try/Immediate.h"

#include "automation/Error.h"
#include "automation/Object.h"
#include "automation/Text.h"
#include "host/language/Words.h"

namespace host {

namespace {

using automation::ObjectPtr;
using automation::Value;

/// A property that is no object; nothing where there is none of that name.
std::optional<Value> plainProperty(automation::Object& object, std::u16string_view name) {
    try {
        Value value = object.invoke(name, automation::Access::Get, {});
        return value.isObject() ? std::nullopt : std::optional(std::move(value));
    } catch (const automation::Error&) {
        return std::nullopt;
    }
}

bool isNumber(const Value& value) {
    return value.is<std::int16_t>() || value.is<std::int32_t>() || value.is<float>() || value.is<double>();
}

} // namespace

std::string printed(const ObjectPtr& object) {
    if (!object) {
        return "Nothing";
    }
    const std::u16string className = object->className();
    std::string text = className.empty() ? "an object" : automation::toUtf8(className);
    if (const auto name = plainProperty(*object, u"Name")) {
        return text + " " + onOneLine(name->display());
    }
    if (const auto value = plainProperty(*object, {})) {
        return text + " " + onOneLine(value->display());
    }
    if (const auto count = plainProperty(*object, u"Count")) {
        return text + " of " + onOneLine(count->display());
    }
    return text;
}

std::string printed(const Value& value) {
    if (value.isObject()) {
        return printed(value.as<ObjectPtr>());
    }
    if (value.is<automation::Array>()) {
        return onOneLine(value.display());
    }
    if (value.isMissing()) {
        return "Missing";
    }
    std::string text = onOneLine(value.to<std::u16string>());
    return isNumber(value) && !text.starts_with('-') ? " " + text : text;
}

} // namespace host
