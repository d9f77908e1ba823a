#pragma once

#include "automation/Name.h"
#include "automation/Unmoved.h"
#include "automation/Value.h"

#include <cstddef>
#include <span>

namespace automation {

/// How a late-bound call reaches a member.
enum class Access : std::uint8_t {
    Get,       ///< reads a property
    Put,       ///< writes a property; the new value is the last argument
    Call,      ///< calls a method
    GetOrCall, ///< what a scripting language says, which cannot know whether a member is a property or a method
};

/// One reference-counted, late-bound automation object; it may live in another process.
class Object : Unmoved {
public:
    Object() noexcept;
    virtual ~Object();

    /// Reaches a member with its arguments in order; `Missing` stands for an optional one left out. Those that `name`
    /// names come behind, but before the new value of a property. Arguments passed by reference may be written back.
    /// Raises MemberNotFound (438) for a name that the object does not publish, NamedArgumentNotFound (448) for an
    /// argument that the member does not, and whatever the member raises.
    virtual Value invoke(const Name& name, Access access, std::span<Value> arguments) = 0;

    /// True when both stand for the same object.
    [[nodiscard]] virtual bool isSame(const Object& other) const noexcept { return this == &other; }

    /// The class of the object, as the TypeName of a macro gives it; empty where it is not known.
    [[nodiscard]] virtual std::u16string className() const { return {}; }

    /// Number of objects alive in this process.
    [[nodiscard]] static std::size_t alive() noexcept;

private:
    std::shared_ptr<const int> share_;
};

/// True when both references are nothing, or stand for the same object.
[[nodiscard]] bool isSame(const ObjectPtr& left, const ObjectPtr& right) noexcept;

} // namespace automation
