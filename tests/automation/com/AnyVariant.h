#pragma once

#include "automation/Unmoved.h"
#include "automation/com/Variant.h"
#include "automation/com/WideText.h"
#include "tests/support/Chance.h"

#include <array>
#include <cstring>
#include <deque>
#include <memory>

namespace tests {

using automation::com::Bstr;
using automation::com::Variant;

/// A reference to a variable of a type.
inline VARIANT referenceTo(int type, VARIANT& variable) {
    VARIANT reference;
    VariantInit(&reference);
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = type == VT_VARIANT   ? static_cast<void*>(&variable)
                      : type == VT_DECIMAL ? static_cast<void*>(&variable.decVal)
                                           : static_cast<void*>(&variable.llVal);
    return reference;
}

/// VARIANTs of any type and content, as a careless client might pass them. What they point to is kept here.
class AnyVariant : automation::Unmoved {
public:
    explicit AnyVariant(Chance& chance) : chance_(chance) {}

    /// Any type with any bits, its pointers null or to something of that type; one level of many is another VARIANT.
    const VARIANT& pick(int depth = 0) {
        static constexpr auto types = std::to_array<VARTYPE>(
            {VT_EMPTY, VT_NULL,     VT_I2,     VT_I4,        VT_R4,      VT_R8,         VT_CY,     VT_DATE,
             VT_BSTR,  VT_DISPATCH, VT_ERROR,  VT_BOOL,      VT_I1,      VT_UI1,        VT_UI2,    VT_UI4,
             VT_I8,    VT_UI8,      VT_INT,    VT_UINT,      VT_DECIMAL, VT_UNKNOWN,    VT_RECORD, VT_VARIANT,
             VT_VOID,  VT_LPSTR,    VT_LPWSTR, VT_SAFEARRAY, VT_CARRAY,  VT_USERDEFINED});
        Variant& variant = *kept_.emplace_back(std::make_unique<Variant>());
        auto type = static_cast<VARTYPE>(chance_.oneIn(20) ? chance_.bits() & VT_TYPEMASK : chance_.of(types));
        const std::uint64_t bits = chance_.oneIn(3) ? chance_.below(4) : chance_.bits();
        std::memcpy(&variant.llVal, &bits, sizeof bits);
        if (type == VT_DECIMAL) {
            std::memcpy(&variant.decVal.Hi32, &bits, sizeof variant.decVal.Hi32);
            variant.decVal.scale = static_cast<BYTE>(bits >> 8U);
            variant.decVal.sign = static_cast<BYTE>(bits);
        }
        if (type == VT_BSTR) {
            variant.bstrVal = chance_.oneIn(3) ? nullptr : Bstr(text()).release();
        } else if (type == VT_DISPATCH || type == VT_UNKNOWN || type == VT_RECORD) {
            variant.llVal = 0;
        }
        variant.vt = VT_EMPTY; // what it points to is freed by nobody but here
        VARIANT& shown = views_.emplace_back(variant);
        if (type == VT_BSTR) {
            variant.vt = VT_BSTR;
        }
        if (chance_.oneIn(4)) {
            type = static_cast<VARTYPE>(type | VT_ARRAY);
            shown.parray = chance_.oneIn(6) ? nullptr : array(static_cast<VARTYPE>(type & VT_TYPEMASK));
        }
        shown.vt = type;
        if (chance_.oneIn(3) && depth < 20) {
            return reference(shown, depth);
        }
        return shown;
    }

    /// Forgets what has been picked so far.
    void forget() {
        views_.clear();
        kept_.clear();
        for (SAFEARRAY* const each : std::exchange(arrays_, {})) {
            SafeArrayDestroyDescriptor(each);
        }
        storage_.clear();
    }

    ~AnyVariant() { forget(); }

private:
    std::u16string text() {
        using namespace std::string_literals;
        static const std::vector<std::u16string> texts{
            u"", u"12", u"-1e309", u"vrai", u"\0\0\0"s, {u'\xD800'}, std::u16string(3000, u'9')};
        return chance_.of(texts);
    }

    /// A reference to what a VARIANT holds, or to it; now and then to nothing, or to itself.
    const VARIANT& reference(VARIANT& content, int depth) {
        VARIANT& result = views_.emplace_back(referenceTo(content.vt, content));
        if (chance_.oneIn(2) || content.vt == VT_VARIANT) {
            result.vt = VT_BYREF | VT_VARIANT;
            // NOLINTBEGIN(cppcoreguidelines-pro-type-const-cast): it is only read
            result.pvarVal = chance_.oneIn(20)   ? nullptr
                             : chance_.oneIn(20) ? &result
                             : chance_.oneIn(2)  ? &const_cast<VARIANT&>(pick(depth + 1))
                                                 : &content;
            // NOLINTEND(cppcoreguidelines-pro-type-const-cast)
        } else if (chance_.oneIn(10)) {
            result.byref = nullptr;
        }
        return result;
    }

    /// An array with up to three dimensions, whose bounds promise more than any memory holds, now and then; it holds
    /// nothing then, or what it promises.
    SAFEARRAY* array(VARTYPE type) {
        const std::size_t dimensions = chance_.between(1, 3);
        SAFEARRAY* made = nullptr;
        if (FAILED(SafeArrayAllocDescriptor(static_cast<UINT>(dimensions), &made))) {
            return nullptr;
        }
        arrays_.push_back(made);
        const bool isHuge = chance_.oneIn(4);
        std::size_t elements = 1;
        for (std::size_t i = 0; i < dimensions; ++i) {
            SAFEARRAYBOUND& bound = made->rgsabound[i];
            bound.cElements = static_cast<ULONG>(isHuge ? chance_.bits() : chance_.below(4));
            bound.lLbound = static_cast<LONG>(chance_.oneIn(3) ? chance_.bits() : chance_.below(3));
            elements *= isHuge ? 0 : bound.cElements;
        }
        const std::size_t size = type == VT_VARIANT ? sizeof(VARIANT) : automation::com::sizeOf(type);
        made->cbElements = static_cast<ULONG>(chance_.oneIn(10) ? chance_.below(40) : size);
        // Zeroes: null pointers, empty VARIANTs.
        made->pvData =
            isHuge || chance_.oneIn(10)
                ? nullptr
                : storage_.emplace_back((elements + 1) * std::max<std::size_t>({size, made->cbElements, 1})).data();
        return made;
    }

    Chance& chance_;
    std::vector<std::unique_ptr<Variant>> kept_;
    std::deque<VARIANT> views_;
    std::vector<SAFEARRAY*> arrays_;
    std::deque<std::vector<std::byte>> storage_;
};

} // namespace tests
