#include "automation/com/MemberDispatch.h"

#include "automation/Elements.h"
#include "automation/FirstError.h"
#include "automation/com/ClientVariable.h"
#include "automation/com/ComError.h"
#include "automation/com/Variant.h"
#include "automation/com/VariantReader.h"
#include "automation/com/WideText.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace automation::com::member_dispatch {

namespace {

constexpr WORD putFlags = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
constexpr WORD readFlags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
constexpr UINT mostArguments = 255;

DISPID idOf(const MemberTable& members, const Member* member) noexcept {
    if (member == nullptr) {
        return DISPID_UNKNOWN;
    }
    if (member->name.matches(newEnum)) {
        return DISPID_NEWENUM;
    }
    return member->isDefault ? DISPID_VALUE : static_cast<DISPID>(member - members.members().data() + 1);
}

const Member* memberOf(const MemberTable& members, DISPID id) noexcept {
    if (id == DISPID_VALUE || id == DISPID_NEWENUM) {
        return members.find(id == DISPID_VALUE ? defaultMember : newEnum);
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
    const bool areNamed = parameters->cNamedArgs == 0 || parameters->rgdispidNamedArgs != nullptr;
    return areNamed && parameters->cNamedArgs <= parameters->cArgs ? S_OK : E_INVALIDARG;
}

/// Where the arguments of a call stand, in their order; null for one left out.
using Order = std::vector<const VARIANT*>;

/// Puts the named arguments behind those that stand in their places; the new value of a property is the last of all.
HRESULT putInOrder(const DISPPARAMS& given, const Member& member, Access access, Order& order) {
    for (UINT i = given.cArgs; i > given.cNamedArgs; --i) {
        order.push_back(&given.rgvarg[i - 1]);
    }
    const VARIANT* newValue = nullptr;
    for (UINT i = 0; i < given.cNamedArgs; ++i) {
        const DISPID id = given.rgdispidNamedArgs[i];
        if (access == Access::Put && id == DISPID_PROPERTYPUT) {
            newValue = &given.rgvarg[i];
            continue;
        }
        if (member.parameters.empty()) {
            return DISP_E_NONAMEDARGS;
        }
        const auto place = static_cast<std::size_t>(id);
        if (id < 0 || place >= parameters::count(member.parameters) ||
            (place < order.size() && order[place] != nullptr)) {
            return DISP_E_PARAMNOTFOUND;
        }
        order.resize(std::max(order.size(), place + 1));
        order[place] = &given.rgvarg[i];
    }
    if (newValue != nullptr) {
        order.push_back(newValue);
    }
    return S_OK;
}

/// The arguments of one call from outside, as values in their order.
class GivenArguments {
public:
    explicit GivenArguments(const Order& given) : variables_(given.size()), arguments_(given.size()) {
        VariantReader reader;
        for (std::size_t i = 0; i < given.size(); ++i) {
            if (given[i] == nullptr) {
                arguments_[i] = Missing();
                continue;
            }
            arguments_[i] = reader.read(*given[i]);
            if (isReference(*given[i])) {
                arguments_[i] = variables_[i].emplace(*given[i], std::move(arguments_[i])).argument();
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
        std::fill_n(ids, count, DISPID_UNKNOWN);
        const std::u16string name = names[0] == nullptr ? u"" : fromWide(names[0]);
        const Member* const member = name.empty() ? nullptr : members.find(Name(name));
        ids[0] = idOf(members, member);
        for (UINT i = 1; i < count && member != nullptr; ++i) {
            const std::u16string parameter = names[i] == nullptr ? u"" : fromWide(names[i]);
            const auto place = parameters::placeOf(member->parameters, Name(parameter));
            ids[i] = place ? static_cast<DISPID>(*place) : DISPID_UNKNOWN;
        }
        return std::find(ids, ids + count, DISPID_UNKNOWN) == ids + count ? S_OK : DISP_E_UNKNOWNNAME;
    });
}

// NOLINTNEXTLINE(bugprone-exception-escape): `guarded` catches what the call raises
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
        Order order;
        if (const HRESULT refused = putInOrder(*parameters, *member, *access, order); FAILED(refused)) {
            return refused;
        }
        GivenArguments arguments(order);
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
