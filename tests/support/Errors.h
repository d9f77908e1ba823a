#pragma once

#include "tests/trials/torture/ErrorOf.h"

#include <gtest/gtest.h>

using trials::torture::errorOf;

inline constexpr std::int32_t noError = -1;
/// PowerPoint's own: what an object stood for is gone; a request that it refuses.
inline constexpr auto objectGone = static_cast<std::int32_t>(0x80048010U);
inline constexpr auto requestRefused = static_cast<std::int32_t>(0x80048240U);

/// Number of the error that an operation raises; `noError` when it raises none.
template <typename Operation> std::int32_t errorNumber(const Operation& operation) {
    const auto error = errorOf(operation);
    return error ? error->number() : noError;
}
