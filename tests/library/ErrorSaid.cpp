#include "tests/library/ErrorSaid.h"

#include "automation/com/ComError.h"
#include "automation/com/ComPtr.h"
#include "automation/com/Variant.h"
#include "automation/com/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace tests {

using automation::com::Bstr;
using automation::com::ComPtr;
using automation::com::Variant;

ErrorSaid errorOfInterface(HRESULT status) {
    ErrorSaid said;
    said.number = static_cast<std::uint32_t>(status);
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.receive()) == S_OK) {
        Bstr source;
        Bstr description;
        info->GetSource(source.receive());
        info->GetDescription(description.receive());
        info->GetHelpContext(&said.helpContext);
        said.source = source.text();
        said.description = description.text();
    }
    return said;
}

ErrorSaid errorOfInvoke(IDispatch& object, std::u16string_view member, std::vector<VARIANT> arguments) {
    const Bstr name(member);
    LPOLESTR asked = name.get();
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, &asked, 1, 0, &id), S_OK);
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    Variant result;
    automation::com::ExceptionInfo raised;
    const HRESULT status =
        object.Invoke(id, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, &result, &raised, nullptr);
    if (status != DISP_E_EXCEPTION) {
        return errorOfInterface(status);
    }
    ErrorSaid said{static_cast<std::uint32_t>(raised.scode), Bstr::textOf(raised.bstrSource),
                   Bstr::textOf(raised.bstrDescription), raised.dwHelpContext};
    EXPECT_EQ(errorOfInterface(raised.scode), said);
    return said;
}

ErrorSaid errorOfCall(IDispatch& object, std::u16string_view member, const std::vector<automation::Value>& arguments) {
    std::vector<Variant> held;
    std::transform(arguments.begin(), arguments.end(), std::back_inserter(held), automation::com::variantOf);
    return errorOfInvoke(object, member, std::vector<VARIANT>(held.begin(), held.end()));
}

} // namespace tests
