#pragma once

#include "automation/Value.h"

namespace automation {

/// An object variable of the caller's. What is set is there at once, and not only when the call ends: an object that
/// the caller alone still holds is gone when its variable becomes nothing.
class ObjectVariable {
public:
    /// The argument must outlive this.
    explicit ObjectVariable(Value& argument) noexcept : argument_(&argument) {}

    /// Empty is nothing, as some clients say that they have no object. Raises TypeMismatch (13) for what is no object.
    [[nodiscard]] ObjectPtr get() const { return argument_->isEmpty() ? nullptr : argument_->to<ObjectPtr>(); }
    /// A variable that is empty stays so where nothing is set.
    void set(ObjectPtr object) {
        if (object || !argument_->isEmpty()) {
            argument_->write(std::move(object));
        }
    }

private:
    Value* argument_;
};

} // namespace automation
