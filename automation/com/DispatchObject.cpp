#include "automation/com/DispatchObject.h"

#include "automation/Elements.h"
#include "automation/com/ComError.h"
#include "automation/com/PassedArguments.h"
#include "automation/com/VariantReader.h"
#include "automation/com/WideText.h"

#include <algorithm>

namespace automation::com {

namespace {

/// Where something is read, it is left to the server whether it has it as a property or as a method, as macro languages
/// do.
WORD flagsOf(Access access) noexcept {
    return access == Access::Put ? DISPATCH_PROPERTYPUT : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
}

/// True where it is the object alone that is gone, and not its process.
bool isOfObjectAlone(HRESULT status) noexcept {
    return status == remote::disconnected || status == remote::objectNotConnected;
}

/// One Invoke with what it gives back.
class Call {
public:
    explicit Call(Patience& patience) noexcept : patience_(patience) {}

    HRESULT make(IDispatch& target, DISPID id, WORD flags, DISPPARAMS& parameters) {
        // A property put gives nothing, and some servers refuse to be asked for it.
        const bool gives = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) == 0;
        return patience_.untilTaken([&] {
            result = Variant();
            raised.clear();
            return target.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, gives ? &result : nullptr,
                                 &raised, nullptr);
        });
    }

    Variant result;
    ExceptionInfo raised;

private:
    Patience& patience_;
};

} // namespace

DispatchObject::DispatchObject(ComPtr<IDispatch> dispatch, ComPtr<IUnknown> identity, ServerSessionPtr session) noexcept
    : dispatch_(std::move(dispatch)), identity_(std::move(identity)), session_(std::move(session)) {}

Value DispatchObject::invoke(const Name& name, Access access, std::span<Value> arguments) {
    requireAlive();
    Patience patience;
    std::vector<DISPID> named(name.parameters().size());
    const DISPID id = named.empty() ? idOf(name, patience) : lookUp(name, patience, named);
    PassedArguments passed(arguments, access, named);
    Call call(patience);
    HRESULT status = call.make(*dispatch_.get(), id, flagsOf(access), passed.parameters());
    if (status == DISP_E_MEMBERNOTFOUND && access == Access::Put && arguments.back().isObject()) {
        status = call.make(*dispatch_.get(), id, DISPATCH_PROPERTYPUTREF, passed.parameters());
    }
    if (status == DISP_E_EXCEPTION) {
        passed.tryWriteBack(session_);
        throw errorOf(call.raised);
    }
    require(status);
    passed.writeBack(session_);
    return VariantReader(session_).read(call.result);
}

bool DispatchObject::isSame(const Object& other) const noexcept {
    const auto* const foreign = dynamic_cast<const DispatchObject*>(&other);
    return foreign != nullptr && foreign->identity_ == identity_;
}

std::u16string DispatchObject::className() const {
    ComPtr<ITypeInfo> type;
    Bstr name;
    if (FAILED(dispatch_->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.receive())) || !type ||
        FAILED(type->GetDocumentation(MEMBERID_NIL, name.receive(), nullptr, nullptr, nullptr))) {
        return {};
    }
    // The interface of a class that also raises events is named with an underscore.
    const std::u16string text = name.text();
    return text.starts_with(u'_') ? text.substr(1) : text;
}

DISPID DispatchObject::idOf(const Name& name, Patience& patience) {
    if (name.isDefault()) {
        return DISPID_VALUE;
    }
    if (name.matches(newEnum)) {
        return DISPID_NEWENUM;
    }
    MemberIds& ids = name.scope().empty() ? ownIds_ : session_->ids;
    if (const auto id = ids.find(name)) {
        return *id;
    }
    const DISPID id = lookUp(name, patience, {});
    ids.remember(name, id);
    return id;
}

DISPID DispatchObject::lookUp(const Name& name, Patience& patience, std::span<DISPID> named) {
    std::vector<std::wstring> texts{std::wstring(name.text().begin(), name.text().end())};
    for (const std::u16string_view parameter : name.parameters()) {
        texts.emplace_back(parameter.begin(), parameter.end());
    }
    std::vector<LPOLESTR> asked(texts.size());
    std::transform(texts.begin(), texts.end(), asked.begin(), [](std::wstring& text) { return text.data(); });
    std::vector<DISPID> ids(texts.size(), DISPID_UNKNOWN);
    const HRESULT status = patience.untilTaken([&] {
        return dispatch_->GetIDsOfNames(IID_NULL, asked.data(), static_cast<UINT>(asked.size()), LOCALE_USER_DEFAULT,
                                        ids.data());
    });
    if (status == DISP_E_UNKNOWNNAME && !named.empty() && ids.front() != DISPID_UNKNOWN) {
        raise(RunTimeError::NamedArgumentNotFound);
    }
    require(status);
    std::copy(ids.begin() + 1, ids.end(), named.begin());
    return ids.front();
}

void DispatchObject::requireAlive() const {
    check(gone_);
    // As the system says to whom the end of the process is no news any more.
    check(session_->isGone ? remote::serverUnavailable : S_OK);
}

void DispatchObject::require(HRESULT status) {
    if (remote::isDead(status)) {
        gone_ = status;
        session_->isGone = session_->isGone || !isOfObjectAlone(status);
    }
    check(status);
}

} // namespace automation::com
