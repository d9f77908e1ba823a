#pragma once

#include "automation/Value.h"

#include "automation/com/Ole.h"

namespace automation::com {

/// A VARIANT that owns what it holds. A by-reference one does not own what it refers to.
class Variant : public VARIANT {
public:
    Variant() noexcept : VARIANT{} { VariantInit(this); }
    ~Variant() { VariantClear(this); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    Variant(Variant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
    Variant& operator=(Variant&& other) noexcept {
        if (this != &other) {
            VariantClear(this);
            static_cast<VARIANT&>(*this) = other;
            VariantInit(&other);
        }
        return *this;
    }

    /// Refers to a variable, so that the callee can write to it.
    [[nodiscard]] static Variant reference(VARIANT& variable) noexcept {
        Variant result;
        result.vt = VT_BYREF | VT_VARIANT;
        result.pvarVal = &variable;
        return result;
    }

    /// Hands the content over to the caller.
    [[nodiscard]] VARIANT release() noexcept {
        const VARIANT content = *this;
        VariantInit(this);
        return content;
    }
};

static_assert(sizeof(Variant) == sizeof(VARIANT), "arrays of them are passed as arrays of VARIANT");

/// A value as a VARIANT, by-reference arguments read through. Raises TypeMismatch (13) for an object that cannot leave
/// this process.
[[nodiscard]] Variant variantOf(const Value& value);

/// The content of a VARIANT in another type, by the system's conversions and a locale that knows no country. Raises
/// TypeMismatch (13) or Overflow (6).
[[nodiscard]] Variant converted(const VARIANT& variant, VARTYPE type);

/// Bytes of a variable of a type, arrays included (they are pointers); 0 for VT_VARIANT and for a type that no value
/// has.
[[nodiscard]] std::size_t sizeOf(VARTYPE type) noexcept;

/// References to references that are followed; a chain that is longer is an endless one.
inline constexpr int deepestReference = 16;

/// True for a VARIANT that refers to a variable of its maker's.
[[nodiscard]] inline bool isReference(const VARIANT& variant) noexcept {
    return (variant.vt & VT_BYREF) != 0;
}

/// Writes a value to the variable that a by-reference VARIANT refers to, be it through others, converted to the
/// variable's type. Raises TypeMismatch (13) or Overflow (6) where it does not fit, InvalidProcedureCall (5) for a null
/// reference, OutOfMemory (7) for references without end; the variable then keeps what it held.
void assign(const VARIANT& reference, const Value& value);

} // namespace automation::com
