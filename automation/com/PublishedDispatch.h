#pragma once

#include "automation/com/ComError.h"
#include "automation/com/MemberDispatch.h"
#include "automation/com/Objects.h"

namespace automation::com {

/// A published object as COM sees it, late-bound by its member table and with rich errors. The first interface is
/// IDispatch or a dual one; a class that adds interfaces by vtable lets its operations run under `guarded`, so that
/// their errors are the same as those of late-bound calls.
template <typename First, typename... Others>
class PublishedDispatch : public ComObject<First, Others..., ISupportErrorInfo> {
public:
    explicit PublishedDispatch(std::shared_ptr<Published> object)
        : object_(*object),
          standing_(std::move(object), static_cast<First*>(this), this->identity(), this->references()) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        forgetError();
        if (count == nullptr) {
            return E_POINTER;
        }
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) noexcept override {
        forgetError();
        if (info != nullptr) {
            *info = nullptr;
        }
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID /*locale*/,
                                            DISPID* ids) noexcept override {
        forgetError();
        return IsEqualIID(reserved, IID_NULL) ? member_dispatch::getIdsOfNames(object_.members(), names, count, ids)
                                              : DISP_E_UNKNOWNINTERFACE;
    }
    // NOLINTNEXTLINE(bugprone-exception-escape): `member_dispatch::invoke` lets none out
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* raised, UINT* /*wrongArgument*/) noexcept override {
        const ComPtr<IUnknown> alive = held();
        forgetError();
        return IsEqualIID(reserved, IID_NULL) ? member_dispatch::invoke(object_, id, flags, parameters, result, raised)
                                              : DISP_E_UNKNOWNINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID interfaceId) noexcept override {
        return find(interfaceId) != nullptr ? S_OK : S_FALSE;
    }

protected:
    /// A reference for the length of a call, in which the client may drop its last one.
    [[nodiscard]] ComPtr<IUnknown> held() noexcept { return ComPtr<IUnknown>(this->identity()); }

    [[nodiscard]] void* find(REFIID wanted) noexcept override {
        return IsEqualIID(wanted, __uuidof(IDispatch)) ? static_cast<First*>(this)
                                                       : ComObject<First, Others..., ISupportErrorInfo>::find(wanted);
    }

private:
    Published& object_;
    Standing standing_;
};

} // namespace automation::com
