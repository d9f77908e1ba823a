#pragma once

#include "automation/Error.h"

#include <optional>

namespace trials::torture {

/// The automation error that a step raises; nothing where it raises none.
template <typename Step> std::optional<automation::Error> errorOf(const Step& step) {
    try {
        step();
        return std::nullopt;
    } catch (const automation::Error& error) {
        return error;
    }
}

} // namespace trials::torture
