#include "tests/library/ErrorSaid.h"

#include "automation/com/ComError.h"
#include "automation/com/ComPtr.h"
#include "automation/com/Variant.h"
#include "automation/com/WideText.h"

#include <gtest/gtest.h>

namespace tests {

using automation::com::Bstr;
using automation::com::ComPtr;

ErrorSaid errorOfInterface(HRESULT status) {
    ErrorSaid said{static_cast<std::uint32_t>(status), {}, {}};
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.receive()) == S_OK) {
        Bstr source;
        Bstr description;
        info->GetSource(source.receive());
        info->GetDescription(description.receive());
        said.source = source.text();
        said.description = description.text();
    }
    return said;
}

ErrorSaid errorOfCall(IDispatch& object, std::u16string_view member, const std::vector<automation::Value>& arguments) {
    const Bstr name(member);
    LPOLESTR asked = name.get();
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, &asked, 1, 0, &id), S_OK);
    std::vector<automation::com::Variant> given;
    for (auto each = arguments.rbegin(); each != arguments.rend(); ++each) {
        given.push_back(automation::com::variantOf(*each));
    }
    DISPPARAMS parameters{given.data(), nullptr, static_cast<UINT>(given.size()), 0};
    automation::com::Variant result;
    automation::com::ExceptionInfo raised;
    const HRESULT status =
        object.Invoke(id, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, &result, &raised, nullptr);
    if (status != DISP_E_EXCEPTION) {
        return errorOfInterface(status);
    }
    ErrorSaid said{static_cast<std::uint32_t>(raised.scode), Bstr::textOf(raised.bstrSource),
                   Bstr::textOf(raised.bstrDescription)};
    EXPECT_EQ(errorOfInterface(raised.scode), said);
    return said;
}

} // namespace tests
