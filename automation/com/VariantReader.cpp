#include "automation/com/VariantReader.h"

#include "automation/Error.h"
#include "automation/Unmoved.h"
#include "automation/com/ComError.h"
#include "automation/com/Elements.h"
#include "automation/com/Objects.h"
#include "automation/com/Variant.h"
#include "automation/com/WideText.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <vector>

namespace automation::com {

namespace {

/// A whole number of any width: 32 bits where it fits, else a double.
template <typename Integer> Value whole(Integer number) {
    if (std::in_range<std::int32_t>(number)) {
        return static_cast<std::int32_t>(number);
    }
    return static_cast<double>(number);
}

/// One more level of nesting, for the length of a scope.
class Level : Unmoved {
public:
    Level(int& depth, int deepest) : depth_(depth) {
        if (depth_ >= deepest) {
            raise(RunTimeError::OutOfMemory);
        }
        ++depth_;
    }
    ~Level() { --depth_; }

private:
    int& depth_;
};

/// The elements of an array, dimension after dimension.
class ArrayWalk {
public:
    ArrayWalk(SAFEARRAY& array, VARTYPE type) : array_(array), indices_(SafeArrayGetDim(&array)), type_(type) {
        const std::size_t size = type == VT_VARIANT ? sizeof(VARIANT) : sizeOf(type);
        if (indices_.empty() || size == 0 || SafeArrayGetElemsize(&array) != size) {
            raise(RunTimeError::TypeMismatch);
        }
    }

    [[nodiscard]] bool isInnermost(std::size_t dimension) const noexcept { return dimension + 1 == indices_.size(); }

    /// Number of elements along a dimension, from 0.
    [[nodiscard]] std::size_t length(std::size_t dimension) const {
        LONG last = 0;
        check(SafeArrayGetUBound(&array_, static_cast<UINT>(dimension + 1), &last));
        return static_cast<std::size_t>(std::max<LONGLONG>(LONGLONG{last} - first(dimension) + 1, 0));
    }

    void select(std::size_t dimension, std::size_t position) {
        indices_[dimension] = static_cast<LONG>(first(dimension) + static_cast<LONGLONG>(position));
    }

    /// A reference to the element selected.
    [[nodiscard]] VARIANT element() {
        VARIANT reference;
        VariantInit(&reference);
        if (array_.pvData == nullptr) {
            raise(RunTimeError::InvalidProcedureCall);
        }
        check(SafeArrayPtrOfIndex(&array_, indices_.data(), &reference.byref));
        reference.vt = static_cast<VARTYPE>(VT_BYREF | type_);
        return reference;
    }

private:
    [[nodiscard]] LONG first(std::size_t dimension) const {
        LONG index = 0;
        check(SafeArrayGetLBound(&array_, static_cast<UINT>(dimension + 1), &index));
        return index;
    }

    SAFEARRAY& array_;
    std::vector<LONG> indices_;
    VARTYPE type_;
};

} // namespace

Value VariantReader::read(const VARIANT& variant) {
    if (isReference(variant)) {
        return readReference(variant);
    }
    if ((variant.vt & VT_ARRAY) != 0) {
        return readArray(variant.parray, static_cast<VARTYPE>(variant.vt & VT_TYPEMASK));
    }
    switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL: return Empty();
    case VT_ERROR:
        if (variant.scode == DISP_E_PARAMNOTFOUND) {
            return Missing();
        }
        break;
    case VT_BOOL: return variant.boolVal != VARIANT_FALSE;
    case VT_I1: return static_cast<std::int16_t>(static_cast<signed char>(variant.cVal));
    case VT_UI1: return static_cast<std::int16_t>(variant.bVal);
    case VT_I2: return static_cast<std::int16_t>(variant.iVal);
    case VT_UI2: return whole(variant.uiVal);
    case VT_I4:
    case VT_INT: return whole(variant.lVal);
    case VT_UI4:
    case VT_UINT: return whole(variant.ulVal);
    case VT_I8: return whole(variant.llVal);
    case VT_UI8: return whole(variant.ullVal);
    case VT_R4: return variant.fltVal;
    case VT_R8:
    case VT_DATE: return variant.dblVal;
    case VT_CY:
    case VT_DECIMAL: return converted(variant, VT_R8).dblVal;
    case VT_BSTR: return Bstr::textOf(variant.bstrVal);
    case VT_DISPATCH:
    case VT_UNKNOWN: return readObject(variant.punkVal);
    default: break;
    }
    raise(RunTimeError::TypeMismatch);
}

Value VariantReader::readReference(const VARIANT& reference) {
    if (reference.byref == nullptr) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
    if (type == VT_VARIANT) {
        const Level level(depth_, deepest);
        return read(*reference.pvarVal);
    }
    VARIANT content;
    VariantInit(&content);
    void* const place = type == VT_DECIMAL ? static_cast<void*>(&content.decVal) : &content.llVal;
    std::memcpy(place, reference.byref, sizeOf(type));
    content.vt = type;
    return read(content);
}

Value VariantReader::readObject(IUnknown* object) {
    const auto dispatch = queryFor<IDispatch>(object);
    if (auto elements = dispatch ? nullptr : queryFor<IEnumVARIANT>(object)) {
        return elementsOf(std::move(elements), session_);
    }
    if (object != nullptr && !dispatch) {
        raise(RunTimeError::TypeMismatch);
    }
    return objectOf(dispatch.get(), session_);
}

Value VariantReader::readArray(SAFEARRAY* array, VARTYPE type) {
    if (array == nullptr) {
        return Array();
    }
    const Level level(depth_, deepest);
    ArrayWalk walk(*array, type);
    const std::function<Array(std::size_t)> readDimension = [&](std::size_t dimension) {
        const std::size_t length = walk.length(dimension);
        if (length > mostElements - elements_) {
            raise(RunTimeError::OutOfMemory);
        }
        elements_ += length;
        Array result;
        result.reserve(length);
        for (std::size_t i = 0; i < length; ++i) {
            walk.select(dimension, i);
            result.push_back(walk.isInnermost(dimension) ? read(walk.element()) : readDimension(dimension + 1));
        }
        return result;
    };
    return readDimension(0);
}

} // namespace automation::com
