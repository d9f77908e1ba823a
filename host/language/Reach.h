#pragma once

#include "automation/Object.h"

/// How statements reach the members of objects.
namespace host::language {

/// The object that a value holds. Raises ObjectRequired (424) for another value, ObjectNotSet (91) for nothing.
[[nodiscard]] automation::ObjectPtr objectIn(const automation::Value& value);

/// Reaches a member; the error of one that is missing names it and its class.
automation::Value reach(const automation::Value& object, const automation::Name& name, automation::Access access,
                        std::span<automation::Value> arguments);

/// The value, or that of an object's default member, as macros have it where `Set` is not said.
[[nodiscard]] automation::Value plain(const automation::Value& value);

/// Sets a property. Without `Set`, one that cannot be set but holds an object stands for its default member.
void put(const automation::Value& object, const automation::Name& name, std::span<automation::Value> arguments,
         bool isSet);

} // namespace host::language
