#include "host/language/Reach.h"

#include "host/language/Likeness.h"

namespace host::language {

using automation::Access;
using automation::Error;
using automation::Name;
using automation::ObjectPtr;
using automation::RunTimeError;
using automation::Value;

ObjectPtr objectIn(const Value& value) {
    auto object = value.to<ObjectPtr>();
    if (!object) {
        automation::raise(RunTimeError::ObjectNotSet);
    }
    return object;
}

Value reach(const Value& object, const Name& name, Access access, std::span<Value> arguments) {
    const ObjectPtr target = objectIn(object);
    try {
        return target->invoke(name, access, arguments);
    } catch (const Error& error) {
        if (!error.is(RunTimeError::MemberNotFound) || target->className().empty() || name.isDefault()) {
            throw;
        }
        throw Error(error.number(), error.source(), missingMember(*target, name.text(), access));
    }
}

Value plain(const Value& value) {
    return value.isObject() ? reach(value, automation::defaultMember, Access::GetOrCall, {}) : value;
}

void put(const Value& object, const Name& name, std::span<Value> arguments, bool isSet) {
    try {
        reach(object, name, Access::Put, arguments);
    } catch (const Error& error) {
        if (isSet || !error.is(RunTimeError::MemberNotFound)) {
            throw;
        }
        Value held;
        try {
            held = reach(object, name, Access::Get, arguments.first(arguments.size() - 1));
        } catch (const Error&) { // there is no such member at all
        }
        if (!held.isObject() || held.to<ObjectPtr>() == nullptr) {
            throw;
        }
        reach(held, automation::defaultMember, Access::Put, arguments.last(1));
    }
}

} // namespace host::language
