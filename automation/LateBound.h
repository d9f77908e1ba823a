#pragma once

#include "automation/Error.h"
#include "automation/Object.h"

#include <array>

namespace automation {

/// A reference to an object whose members are reached by name. A reference to nothing raises ObjectNotSet (91) when
/// used.
class LateBound {
public:
    LateBound() noexcept = default;
    explicit LateBound(ObjectPtr object) noexcept : object_(std::move(object)) {}

    [[nodiscard]] const ObjectPtr& object() const noexcept { return object_; }
    [[nodiscard]] explicit operator bool() const noexcept { return object_ != nullptr; }

    /// Reads a property.
    template <typename... Arguments> Value get(const Name& name, Arguments&&... arguments) const {
        return invoke(name, Access::Get, std::forward<Arguments>(arguments)...);
    }
    /// Calls a method.
    template <typename... Arguments> Value call(const Name& name, Arguments&&... arguments) const {
        return invoke(name, Access::Call, std::forward<Arguments>(arguments)...);
    }
    /// Writes a property; the new value comes last.
    template <typename... Arguments> void put(const Name& name, Arguments&&... arguments) const {
        invoke(name, Access::Put, std::forward<Arguments>(arguments)...);
    }

private:
    template <typename... Arguments> Value invoke(const Name& name, Access access, Arguments&&... arguments) const {
        // A reference of the call's own: what the call does may change this one.
        const ObjectPtr object = object_;
        if (!object) {
            raise(RunTimeError::ObjectNotSet);
        }
        std::array<Value, sizeof...(Arguments)> values{{Value(std::forward<Arguments>(arguments))...}};
        return object->invoke(name, access, values);
    }

    ObjectPtr object_;
};

} // namespace automation
