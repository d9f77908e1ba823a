#pragma once

#include "automation/com/ComError.h"
#include "automation/com/PublishedDispatch.h"
#include "automation/com/WideText.h"
#include "library/LibraryFile.h"

#include <K73053.h>

namespace library {

inline void store(VARIANT_BOOL& place, bool truth) noexcept {
    place = truth ? VARIANT_TRUE : VARIANT_FALSE;
}
inline void store(LONG& place, std::int32_t number) noexcept {
    place = number;
}
inline void store(BSTR& place, const std::u16string& text) {
    place = automation::com::Bstr(text).release();
}
/// An object by its interface; nothing is null.
template <typename Interface> void store(Interface*& place, const automation::ObjectPtr& object) {
    place = automation::com::dispatchOf(object).template as<Interface>().release();
}

/// What a pointer of the caller's refers to; raises E_POINTER for null.
template <typename T> [[nodiscard]] T& required(T* place) {
    if (place == nullptr) {
        automation::com::check(E_POINTER);
    }
    return *place;
}

/// A published object with a dual interface of the type library, and others: by vtable and late-bound alike.
template <typename Object, typename Default, typename... Others>
class DualDispatch : public automation::com::PublishedDispatch<Default, Others...> {
public:
    using DefaultInterface = Default;

    explicit DualDispatch(const std::shared_ptr<Object>& object)
        : automation::com::PublishedDispatch<Default, Others...>(object), object_(*object) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        automation::com::forgetError();
        if (count == nullptr) {
            return E_POINTER;
        }
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) noexcept override {
        automation::com::forgetError();
        if (info == nullptr) {
            return E_POINTER;
        }
        *info = nullptr;
        return index == 0 ? automation::com::guarded([&] {
            describeInterface(__uuidof(Default), info);
            return S_OK;
        })
                          : DISP_E_BADINDEX;
    }

protected:
    [[nodiscard]] Object& object() const noexcept { return object_; }

    /// Runs an operation of an interface.
    template <typename Operation> [[nodiscard]] HRESULT run(Operation&& operation) noexcept {
        const auto alive = this->held();
        return automation::com::guarded([&] {
            std::forward<Operation>(operation)();
            return S_OK;
        });
    }

    /// Runs an operation of an interface and stores what it gives; nothing, where it fails.
    template <typename Result, typename Operation>
    [[nodiscard]] HRESULT give(Result* result, Operation&& operation) noexcept {
        return run([&] {
            Result& place = required(result);
            place = Result();
            store(place, std::forward<Operation>(operation)());
        });
    }

private:
    Object& object_;
};

} // namespace library
