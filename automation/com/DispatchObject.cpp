#include "automation/com/DispatchObject.h"

#include "automation/Error.h"
#include "automation/com/ComError.h"
#include "automation/com/PassedArguments.h"
#include "automation/com/Patience.h"
#include "automation/com/VariantReader.h"
#include "automation/com/WideText.h"

namespace automation::com {

namespace {

WORD flagsOf(Access access) noexcept {
    switch (access) {
    case Access::Get: return DISPATCH_PROPERTYGET;
    case Access::Call: return DISPATCH_METHOD;
    case Access::GetOrCall: return DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    case Access::Put: return DISPATCH_PROPERTYPUT;
    }
    return 0;
}

/// One Invoke with what it gives back.
struct Call {
    HRESULT make(IDispatch& target, DISPID id, WORD flags, DISPPARAMS& parameters) {
        // A property put gives nothing, and some servers refuse to be asked for it.
        const bool gives = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) == 0;
        return untilTaken([&] {
            result = Variant();
            raised.clear();
            return target.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, gives ? &result : nullptr,
                                 &raised, nullptr);
        });
    }

    Variant result;
    ExceptionInfo raised;
};

} // namespace

DispatchObject::DispatchObject(ComPtr<IDispatch> dispatch, ComPtr<IUnknown> identity, MemberIdsPtr ids) noexcept
    : dispatch_(std::move(dispatch)), identity_(std::move(identity)), ids_(std::move(ids)) {}

Value DispatchObject::invoke(const Name& name, Access access, std::span<Value> arguments) {
    requireAlive();
    const DISPID id = idOf(name);
    PassedArguments passed(arguments, access);
    Call call;
    HRESULT status = call.make(*dispatch_.get(), id, flagsOf(access), passed.parameters());
    if (status == DISP_E_MEMBERNOTFOUND && access == Access::Put && arguments.back().isObject()) {
        status = call.make(*dispatch_.get(), id, DISPATCH_PROPERTYPUTREF, passed.parameters());
    }
    if (status == DISP_E_EXCEPTION) {
        passed.tryWriteBack(ids_);
        throw errorOf(call.raised);
    }
    require(status);
    passed.writeBack(ids_);
    return VariantReader(ids_).read(call.result);
}

bool DispatchObject::isSame(const Object& other) const noexcept {
    const auto* const foreign = dynamic_cast<const DispatchObject*>(&other);
    return foreign != nullptr && foreign->identity_ == identity_;
}

DISPID DispatchObject::idOf(const Name& name) {
    if (name.isDefault()) {
        return DISPID_VALUE;
    }
    MemberIds& ids = name.scope().empty() ? ownIds_ : *ids_;
    if (const auto id = ids.find(name)) {
        return *id;
    }
    const DISPID id = lookUp(name);
    ids.remember(name, id);
    return id;
}

DISPID DispatchObject::lookUp(const Name& name) {
    std::wstring text(name.text().begin(), name.text().end());
    LPOLESTR asked = text.data();
    DISPID id = DISPID_UNKNOWN;
    require(untilTaken([&] { return dispatch_->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id); }));
    return id;
}

void DispatchObject::requireAlive() const {
    check(gone_);
}

void DispatchObject::require(HRESULT status) {
    if (remote::isDead(status)) {
        gone_ = status;
    }
    check(status);
}

} // namespace automation::com
