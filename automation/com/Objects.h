#pragma once

#include "automation/MemberTable.h"
#include "automation/Unmoved.h"
#include "automation/com/ComObject.h"
#include "automation/com/ServerSession.h"

namespace automation::com {

/// An object that came from COM, as a late-bound object: one of this library's own as itself, any other one behind a
/// DispatchObject. `session` is that of the server that handed it out; without one it stands for a server of its own,
/// which is the same object as long as one is held on it. Null is nothing.
[[nodiscard]] ObjectPtr objectOf(IDispatch* dispatch, const ServerSessionPtr& session = nullptr);

/// An object as COM is given it: one that came from COM as it came, a published one behind what the maker makes for it,
/// the same one as long as it is held. Nothing is null. Raises TypeMismatch (13) for any other object.
[[nodiscard]] ComPtr<IDispatch> dispatchOf(const ObjectPtr& object);

/// Makes the COM object that stands for a published one. Without a maker, or where it gives null, it is an
/// ObjectDispatch.
using DispatchMaker = ComPtr<IDispatch> (*)(const std::shared_ptr<Published>& object);
void makeDispatchBy(DispatchMaker maker) noexcept;

/// For the lifetime of a COM object, makes known that it stands for an object of this library, so that the one is found
/// again from the other.
class Standing : Unmoved {
public:
    /// The references are not counted: this belongs to the COM object itself.
    Standing(ObjectPtr object, IDispatch* dispatch, IUnknown* identity, ReferenceCount& count);
    ~Standing();

    [[nodiscard]] const ObjectPtr& object() const noexcept { return object_; }
    /// The COM object with a reference counted; null where its last one has been dropped.
    [[nodiscard]] ComPtr<IDispatch> dispatch() const noexcept;

private:
    ObjectPtr object_;
    IDispatch* dispatch_;
    IUnknown* identity_;
    ReferenceCount& count_;
};

} // namespace automation::com
