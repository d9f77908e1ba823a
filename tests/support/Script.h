#pragma once

#include "automation/LateBound.h"

namespace tests {

/// Reads a property or calls a method, as a script does that does not know which it is.
template <typename... Arguments>
automation::Value say(const automation::LateBound& object, const automation::Name& member, Arguments&&... arguments) {
    std::array<automation::Value, sizeof...(Arguments)> values{
        automation::Value(std::forward<Arguments>(arguments))...};
    if (!object) {
        automation::raise(automation::RunTimeError::ObjectNotSet);
    }
    return object.object()->invoke(member, automation::Access::GetOrCall, values);
}

/// The object that a member answers with.
template <typename... Arguments>
automation::LateBound ask(const automation::LateBound& object, const automation::Name& member,
                          Arguments&&... arguments) {
    return automation::LateBound(
        say(object, member, std::forward<Arguments>(arguments)...).template to<automation::ObjectPtr>());
}

/// The whole number that a member answers with.
template <typename... Arguments>
std::int32_t number(const automation::LateBound& object, const automation::Name& member, Arguments&&... arguments) {
    return say(object, member, std::forward<Arguments>(arguments)...).template to<std::int32_t>();
}

/// The text that a member answers with.
template <typename... Arguments>
std::u16string text(const automation::LateBound& object, const automation::Name& member, Arguments&&... arguments) {
    return say(object, member, std::forward<Arguments>(arguments)...).template to<std::u16string>();
}

} // namespace tests
