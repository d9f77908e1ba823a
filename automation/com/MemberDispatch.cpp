#include "automation/com/MemberDispatch.h"

#include "automation/FirstError.h"
#include "automation/com/ClientVariable.h"
#include "automation/com/ComError.h"
#include "automation/com/Variant.h"
#include "automation/com/VariantReader.h"
#include "automation/com/WideText.h"

#include <optional>
#include <vector>

namespace automation::com::member_dispatch {

namespace {

constexpr WORD putFlags = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
constexpr WORD readFlags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
constexpr UINT mostArguments = 255;

DISPID idOf(const MemberTable& members, const Name& name) noexcept {
    const Member* const member = name.isDefault() ? nullptr : members.find(name);
    if (member == nullptr) {
        return DISPID_UNKNOWN;
    }
    return member->isDefault ? DISPID_VALUE : static_cast<DISPID>(member - members.members().data() + 1);
}

const Member* memberOf(const MemberTable& members, DISPID id) noexcept {
    if (id == DISPID_VALUE) {
        return members.find(defaultMember);
    }
    const bool known = id > 0 && static_cast<std::size_t>(id) <= members.members().size();
    return known ? &members.members()[static_cast<std::size_t>(id) - 1] : nullptr;
}

std::optional<Access> accessOf(WORD flags) noexcept {
    if ((flags & putFlags) != 0) {
        return Access::Put;
    }
    switch (flags & readFlags) {
    case DISPATCH_METHOD: return Access::Call;
    case DISPATCH_PROPERTYGET: return Access::Get;
    case readFlags: return Access::GetOrCall;
    default: return std::nullopt;
    }
}

/// What is wrong with the arguments as such; S_OK where nothing is.
HRESULT refusal(const DISPPARAMS* parameters, Access access) noexcept {
    if (parameters == nullptr || (parameters->cArgs != 0 && parameters->rgvarg == nullptr)) {
        return E_INVALIDARG;
    }
    if (parameters->cArgs > mostArguments || (access == Access::Put && parameters->cArgs == 0)) {
        return DISP_E_BADPARAMCOUNT;
    }
    const UINT named = access == Access::Put ? 1 : 0;
    if (parameters->cNamedArgs > named) {
        return DISP_E_NONAMEDARGS;
    }
    const bool isNewValue = parameters->cNamedArgs == 0 || (parameters->rgdispidNamedArgs != nullptr &&
                                                            *parameters->rgdispidNamedArgs == DISPID_PROPERTYPUT);
    return isNewValue ? S_OK : DISP_E_NONAMEDARGS;
}

/// The arguments of one call from outside, as values in their order.
class GivenArguments {
public:
    explicit GivenArguments(const DISPPARAMS& parameters) : variables_(parameters.cArgs), arguments_(parameters.cArgs) {
        const std::span<const VARIANT> given(parameters.rgvarg, parameters.cArgs); // the last one first
        VariantReader reader;
        for (std::size_t i = 0; i < given.size(); ++i) {
            const VARIANT& each = given[given.size() - 1 - i];
            arguments_[i] = reader.read(each);
            if (isReference(each)) {
                arguments_[i] = variables_[i].emplace(each, std::move(arguments_[i])).argument();
            }
        }
    }

    [[nodiscard]] std::span<Value> values() noexcept { return arguments_; }

    /// Writes the variables that were changed back to where the caller has them: all that take it, then the first
    /// error.
    void writeBack() {
        FirstError error;
        for (std::optional<ClientVariable>& variable : variables_) {
            if (variable) {
                error.attempt([&] { variable->writeBack(); });
            }
        }
        error.raise();
    }

    /// The same where the member has raised: its error is the one that counts.
    void tryWriteBack() noexcept {
        try {
            writeBack();
        } catch (...) {
            return;
        }
    }

private:
    std::vector<std::optional<ClientVariable>> variables_; ///< those that refer to one
    std::vector<Value> arguments_;
};

Value valueOf(Published& object, const Member& member, Access access, GivenArguments& arguments) {
    try {
        return object.invoke(member.name, access, arguments.values());
    } catch (...) {
        arguments.tryWriteBack();
        throw;
    }
}

} // namespace

HRESULT getIdsOfNames(const MemberTable& members, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
    if (names == nullptr || ids == nullptr || count == 0) {
        return E_INVALIDARG;
    }
    return guarded([&] {
        // Only the member has a name here, its arguments have none.
        std::fill_n(ids, count, DISPID_UNKNOWN);
        if (names[0] != nullptr) {
            const std::u16string name = fromWide(names[0]);
            ids[0] = idOf(members, Name(name));
        }
        return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
    });
}

HRESULT invoke(Published& object, DISPID id, WORD flags, const DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* raised) noexcept {
    const auto call = [&] {
        const Member* const member = memberOf(object.members(), id);
        const auto access = accessOf(flags);
        if (member == nullptr || !access || !member->answers(*access)) {
            return DISP_E_MEMBERNOTFOUND;
        }
        if (const HRESULT refused = refusal(parameters, *access); FAILED(refused)) {
            return refused;
        }
        GivenArguments arguments(*parameters);
        const Value value = valueOf(object, *member, *access, arguments);
        Variant answer = variantOf(value);
        arguments.writeBack();
        if (result != nullptr) {
            *result = answer.release();
        }
        return S_OK;
    };
    return guarded(call, raised);
}

} // namespace automation::com::member_dispatch
