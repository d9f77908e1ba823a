#pragma once

#include "automation/Value.h"
#include "automation/com/ServerSession.h"
#include "automation/com/Variant.h"

#include "automation/com/Ole.h"

#include <cstddef>

namespace automation::com {

/// Reads the VARIANTs of one call.
///
/// Raises TypeMismatch (13) for a type that no value has, InvalidProcedureCall (5) for a null reference, OutOfMemory
/// (7) for arrays that hold more than a call may carry, or nested deeper than it may be.
class VariantReader {
public:
    /// `session` is that of the server that the VARIANTs come from: objects among them belong to it. Without, every
    /// object stands for a server of its own.
    explicit VariantReader(ServerSessionPtr session = nullptr) noexcept : session_(std::move(session)) {}

    /// The value, read through references. Null (VT_NULL) reads as Empty; whole numbers beyond 32 bits, currency,
    /// dates and decimals read as doubles; an array of several dimensions reads as an array of arrays.
    [[nodiscard]] Value read(const VARIANT& variant);

private:
    [[nodiscard]] Value readReference(const VARIANT& reference);
    [[nodiscard]] Value readObject(IUnknown* object);
    [[nodiscard]] Value readArray(SAFEARRAY* array, VARTYPE type);

    static constexpr std::size_t mostElements = 1U << 20U;
    static constexpr int deepest = deepestReference;

    ServerSessionPtr session_;
    std::size_t elements_ = 0;
    int depth_ = 0;
};

} // namespace automation::com
