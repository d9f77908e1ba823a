#include "automation/com/Elements.h"

#include "automation/com/ComError.h"
#include "automation/com/ComObject.h"
#include "automation/com/Patience.h"
#include "automation/com/Variant.h"
#include "automation/com/VariantReader.h"

namespace automation::com {

namespace {

class EnumVariant final : public ComObject<IEnumVARIANT> {
public:
    explicit EnumVariant(std::shared_ptr<Elements> elements) noexcept : elements_(std::move(elements)) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* places, ULONG* given) noexcept override {
        if (places == nullptr || (given == nullptr && wanted != 1)) {
            return E_POINTER;
        }
        ULONG count = 0;
        const HRESULT status = guarded([&] {
            for (; count < wanted; ++count) {
                const Value element = elements_->next();
                if (element.isMissing()) {
                    return S_FALSE;
                }
                places[count] = variantOf(element).release();
            }
            return S_OK;
        });
        while (FAILED(status) && count > 0) {
            VariantClear(&places[--count]);
        }
        if (given != nullptr) {
            *given = count;
        }
        return status;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
        return guarded([&] {
            while (count > 0 && !elements_->next().isMissing()) {
                --count;
            }
            return count == 0 ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE Reset() noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override {
        if (copy != nullptr) {
            *copy = nullptr;
        }
        return E_NOTIMPL;
    }

private:
    std::shared_ptr<Elements> elements_;
};

class ForeignElements final : public Elements {
public:
    ForeignElements(ComPtr<IEnumVARIANT> elements, ServerSessionPtr session) noexcept
        : elements_(std::move(elements)), session_(std::move(session)) {}

    Value next() override {
        Variant element;
        ULONG given = 0;
        Patience patience;
        check(patience.untilTaken([&] { return elements_->Next(1, &element, &given); }));
        return given == 0 ? Value(Missing()) : VariantReader(session_).read(element);
    }

private:
    ComPtr<IEnumVARIANT> elements_;
    ServerSessionPtr session_;
};

} // namespace

ComPtr<IEnumVARIANT> enumVariantOf(std::shared_ptr<Elements> elements) {
    return ComPtr<IEnumVARIANT>(makeCom<EnumVariant>(std::move(elements)).get());
}

std::shared_ptr<Elements> elementsOf(ComPtr<IEnumVARIANT> elements, ServerSessionPtr session) {
    return std::make_shared<ForeignElements>(std::move(elements), std::move(session));
}

} // namespace automation::com
