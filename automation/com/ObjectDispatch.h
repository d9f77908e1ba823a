#pragma once

#include "automation/com/MemberDispatch.h"
#include "automation/com/Objects.h"

namespace automation::com {

/// A published object as COM sees it: late-bound only, with rich errors.
class ObjectDispatch final : public ComObject<IDispatch, ISupportErrorInfo> {
public:
    explicit ObjectDispatch(std::shared_ptr<Published> object)
        : object_(*object), standing_(std::move(object), this, identity(), count()) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) noexcept override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* raised, UINT* wrongArgument) noexcept override;
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID interfaceId) noexcept override;

private:
    Published& object_;
    Standing standing_;
};

} // namespace automation::com
