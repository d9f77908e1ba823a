#include "automation/com/Variant.h"

#include "automation/Error.h"
#include "automation/com/ComError.h"
#include "automation/com/Elements.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"
#include "automation/observe/Observer.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

namespace automation::com {

namespace {

/// Fills a fresh VARIANT with the alternative that a value holds.
class Writer {
public:
    explicit Writer(VARIANT& out) noexcept : out_(out) {}

    void operator()(Empty) const noexcept { out_.vt = VT_EMPTY; }
    void operator()(Missing) const noexcept {
        out_.vt = VT_ERROR;
        out_.scode = DISP_E_PARAMNOTFOUND;
    }
    void operator()(bool truth) const noexcept {
        out_.vt = VT_BOOL;
        out_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int16_t number) const noexcept {
        out_.vt = VT_I2;
        out_.iVal = number;
    }
    void operator()(std::int32_t number) const noexcept {
        out_.vt = VT_I4;
        out_.lVal = number;
    }
    void operator()(float number) const noexcept {
        out_.vt = VT_R4;
        out_.fltVal = number;
    }
    void operator()(double number) const noexcept {
        out_.vt = VT_R8;
        out_.dblVal = number;
    }
    void operator()(const std::u16string& text) const {
        out_.bstrVal = Bstr(text).release();
        out_.vt = VT_BSTR;
    }
    void operator()(const ObjectPtr& object) const {
        if (auto elements = std::dynamic_pointer_cast<Elements>(unobserved(object))) {
            out_.punkVal = enumVariantOf(std::move(elements)).release();
            out_.vt = VT_UNKNOWN;
            return;
        }
        out_.pdispVal = dispatchOf(object).release();
        out_.vt = VT_DISPATCH;
    }
    void operator()(const Array& elements) const {
        if (const std::size_t columns = columnsOf(elements)) {
            VARIANT* const places = create({elements.size(), columns});
            for (std::size_t row = 0; row < elements.size(); ++row) {
                fill(elements[row].to<Array>(), places + row, elements.size());
            }
        } else {
            fill(elements, create({elements.size()}), 1);
        }
    }
    void operator()(const Reference& by) const { by.variable->visit(*this); }

private:
    /// Number of numbers that every element of a table holds, such as the pairs of a list of points; 0 for no table.
    /// Automation servers take tables as arrays of two dimensions.
    static std::size_t columnsOf(const Array& rows) {
        const std::size_t columns = rows.empty() ? 0 : numbersIn(rows.front());
        const bool isTable =
            std::all_of(rows.begin(), rows.end(), [&](const Value& row) { return numbersIn(row) == columns; });
        return isTable ? columns : 0;
    }

    /// Number of elements of an array of numbers; 0 for anything else.
    static std::size_t numbersIn(const Value& row) {
        const auto isNumber = [](const Value& each) {
            return each.is<std::int16_t>() || each.is<std::int32_t>() || each.is<float>() || each.is<double>();
        };
        if (!row.is<Array>() || !std::all_of(row.as<Array>().begin(), row.as<Array>().end(), isNumber)) {
            return 0;
        }
        return row.as<Array>().size();
    }

    /// Makes an array of empty elements; they lie in memory with the first index running fastest.
    VARIANT* create(std::initializer_list<std::size_t> lengths) const {
        std::vector<SAFEARRAYBOUND> bounds;
        for (const std::size_t length : lengths) {
            if (length > std::numeric_limits<LONG>::max()) {
                raise(RunTimeError::OutOfMemory);
            }
            bounds.push_back({static_cast<ULONG>(length), 0});
        }
        SAFEARRAY* const array = SafeArrayCreate(VT_VARIANT, static_cast<UINT>(bounds.size()), bounds.data());
        if (array == nullptr) {
            throw std::bad_alloc();
        }
        out_.parray = array;
        out_.vt = VT_ARRAY | VT_VARIANT;
        return static_cast<VARIANT*>(array->pvData);
    }

    static void fill(const Array& elements, VARIANT* first, std::size_t step) {
        for (const Value& element : elements) {
            *first = variantOf(element).release();
            first += step;
        }
    }

    VARIANT& out_;
};

void assignAt(const VARIANT& reference, const Value& value, int depth);

template <typename T> T& required(T* place) {
    if (place == nullptr) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    return *place;
}

template <typename T, typename Stored> void store(Stored* place, const Value& value) {
    Stored& stored = required(place);
    stored = value.to<T>();
}

void storeTruth(VARIANT_BOOL* place, const Value& value) {
    VARIANT_BOOL& stored = required(place);
    stored = value.to<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
}

template <typename Interface> void storeObject(Interface** place, const Value& value) {
    Interface*& stored = required(place);
    ComPtr<Interface> object(dispatchOf(value.to<ObjectPtr>()).get());
    const auto former = ComPtr<Interface>::adopt(stored);
    stored = object.release();
}

void storeText(BSTR* place, const Value& value) {
    BSTR& stored = required(place);
    Bstr text(value.to<std::u16string>());
    SysFreeString(stored);
    stored = text.release();
}

/// A variable that itself refers to another one passes on what is written to it, as it is read.
void storeVariant(VARIANT* place, const Value& value, int depth) {
    VARIANT& stored = required(place);
    if (isReference(stored)) {
        return assignAt(stored, value, depth + 1);
    }
    Variant content = variantOf(value);
    std::swap(stored, static_cast<VARIANT&>(content)); // what it held is released when it holds the new value
}

void storeArray(SAFEARRAY** place, const Value& value) {
    SAFEARRAY*& stored = required(place);
    Variant content = variantOf(value.to<Array>());
    std::swap(stored, content.parray); // what it held is released when it holds the new value
}

/// Types that no value is of.
void storeConverted(void* place, VARTYPE type, const Value& value) {
    if (place == nullptr) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    const Variant stored = converted(variantOf(value.to<double>()), type);
    // A decimal alone lies over the whole VARIANT, its type included.
    const void* const content = type == VT_DECIMAL ? static_cast<const void*>(&stored.decVal) : &stored.llVal;
    std::memcpy(place, content, sizeOf(type));
    if (type == VT_DECIMAL) {
        static_cast<DECIMAL*>(place)->wReserved = 0;
    }
}

/// `depth` counts the references on the way to this one.
void assignAt(const VARIANT& reference, const Value& value, int depth) {
    if (depth >= deepestReference) {
        raise(RunTimeError::OutOfMemory);
    }
    switch (reference.vt & ~VT_BYREF) {
    case VT_VARIANT: return storeVariant(reference.pvarVal, value, depth);
    case VT_I2: return store<std::int16_t>(reference.piVal, value);
    case VT_I4:
    case VT_INT: return store<std::int32_t>(reference.plVal, value);
    case VT_R4: return store<float>(reference.pfltVal, value);
    case VT_R8: return store<double>(reference.pdblVal, value);
    case VT_BOOL: return storeTruth(reference.pboolVal, value);
    case VT_BSTR: return storeText(reference.pbstrVal, value);
    case VT_DISPATCH: return storeObject(reference.ppdispVal, value);
    case VT_UNKNOWN: return storeObject(reference.ppunkVal, value);
    case VT_ARRAY | VT_VARIANT: return storeArray(reference.pparray, value);
    case VT_I1:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_CY:
    case VT_DATE:
    case VT_DECIMAL: return storeConverted(reference.byref, static_cast<VARTYPE>(reference.vt & ~VT_BYREF), value);
    default: raise(RunTimeError::TypeMismatch);
    }
}

} // namespace

Variant converted(const VARIANT& variant, VARTYPE type) {
    VARIANT source = variant; // the system only reads it, without saying so in its signature
    Variant result;
    const HRESULT status = VariantChangeTypeEx(&result, &source, LOCALE_INVARIANT, 0, type);
    check(status == E_INVALIDARG ? DISP_E_TYPEMISMATCH : status); // a decimal whose parts are out of range
    return result;
}

std::size_t sizeOf(VARTYPE type) noexcept {
    if ((type & VT_ARRAY) != 0) {
        return sizeof(SAFEARRAY*);
    }
    switch (type) {
    case VT_I1:
    case VT_UI1: return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL: return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_ERROR:
    case VT_R4: return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE: return 8;
    case VT_DECIMAL: return sizeof(DECIMAL);
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN: return sizeof(void*);
    default: return 0;
    }
}

Variant variantOf(const Value& value) {
    Variant result;
    value.visit(Writer(result));
    return result;
}

void assign(const VARIANT& reference, const Value& value) {
    assignAt(reference, value, 0);
}

} // namespace automation::com
