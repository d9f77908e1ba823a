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

/// Number of the error that an operation raises; -1 when it raises none.
template <typename Operation> std::int32_t errorNumber(const Operation& operation) {
    const auto error = errorOf(operation);
    return error ? error->number() : -1;
}
