#pragma once

#include "automation/Error.h"

#include <gtest/gtest.h>

#include <optional>

/// The automation error that an operation raises; nothing when it raises none.
template <typename Operation> std::optional<automation::Error> errorOf(const Operation& operation) {
    try {
        operation();
        return std::nullopt;
    } catch (const automation::Error& error) {
        return error;
    }
}

inline constexpr std::int32_t noError = -1;

/// Number of the error that an operation raises; `noError` when it raises none.
template <typename Operation> std::int32_t errorNumber(const Operation& operation) {
    const auto error = errorOf(operation);
    return error ? error->number() : noError;
}
