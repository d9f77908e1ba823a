#pragma once

#include "automation/Object.h"
#include "automation/com/ComPtr.h"
#include "automation/com/Patience.h"
#include "automation/com/ServerSession.h"

namespace automation::com {

/// An object that lives behind an IDispatch, usually in another process: one call, one Invoke. What it hands out shares
/// its session; names without a scope are looked up once per object, those that name arguments at each call.
///
/// An error of the server keeps its number (0x800A0000 + n is n), source, description and help. Once the object
/// is gone, every further call fails with the same error, without being made; once the process behind it is, no object
/// of the session is called any more (ServerUnavailable, 0x800706BA).
class DispatchObject final : public Object {
public:
    /// `identity` is what `identityOf` gives for `dispatch`.
    DispatchObject(ComPtr<IDispatch> dispatch, ComPtr<IUnknown> identity, ServerSessionPtr session) noexcept;

    /// Properties are written as such and read as property or method, whichever it is; an object that a property does
    /// not take by value is set by reference. Arguments passed by reference come back also where the member raises.
    Value invoke(const Name& name, Access access, std::span<Value> arguments) override;

    [[nodiscard]] bool isSame(const Object& other) const noexcept override;

    /// Of an object with type information.
    [[nodiscard]] std::u16string className() const override;

    [[nodiscard]] const ComPtr<IDispatch>& dispatch() const noexcept { return dispatch_; }

private:
    [[nodiscard]] DISPID idOf(const Name& name, Patience& patience);
    /// The id of a member; `named` takes those of the arguments that its name names.
    [[nodiscard]] DISPID lookUp(const Name& name, Patience& patience, std::span<DISPID> named);
    void requireAlive() const;
    /// Raises the error of a failing status, and remembers it where the process behind the object is gone.
    void require(HRESULT status);

    ComPtr<IDispatch> dispatch_;
    ComPtr<IUnknown> identity_;
    ServerSessionPtr session_;
    MemberIds ownIds_;
    HRESULT gone_ = S_OK;
};

} // namespace automation::com
