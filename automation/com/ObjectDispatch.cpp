#include "automation/com/ObjectDispatch.h"

namespace automation::com {

HRESULT ObjectDispatch::GetTypeInfoCount(UINT* count) noexcept {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

HRESULT ObjectDispatch::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) noexcept {
    if (info != nullptr) {
        *info = nullptr;
    }
    return DISP_E_BADINDEX;
}

HRESULT ObjectDispatch::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID /*locale*/,
                                      DISPID* ids) noexcept {
    return IsEqualIID(reserved, IID_NULL) ? member_dispatch::getIdsOfNames(object_.members(), names, count, ids)
                                          : DISP_E_UNKNOWNINTERFACE;
}

HRESULT ObjectDispatch::Invoke(DISPID id, REFIID reserved, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                               VARIANT* result, EXCEPINFO* raised, UINT* /*wrongArgument*/) noexcept {
    return IsEqualIID(reserved, IID_NULL) ? member_dispatch::invoke(object_, id, flags, parameters, result, raised)
                                          : DISP_E_UNKNOWNINTERFACE;
}

HRESULT ObjectDispatch::InterfaceSupportsErrorInfo(REFIID interfaceId) noexcept {
    return IsEqualIID(interfaceId, IID_IDispatch) ? S_OK : S_FALSE;
}

} // namespace automation::com
