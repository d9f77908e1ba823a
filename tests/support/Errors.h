#pragma once

#include "tests/trials/torture/ErrorOf.h"

#include <gtest/gtest.h>

using trials::torture::errorOf;

inline constexpr std::int32_t noError = -1;

/// Number of the error that an operation raises; `noError` when it raises none.
template <typename Operation> std::int32_t errorNumber(const Operation& operation) {
    const auto error = errorOf(operation);
    return error ? error->number() : noError;
}
