#pragma once

#include "automation/Error.h"

#include <string_view>
#include <utility>

namespace platform {

/// Raises the current error again with the place where it happened: same number, description and help; the source is
/// composed of the class, the operation (service) and an object text. Never returns.
[[noreturn]] void reportError(const automation::Error& current, std::u16string_view className,
                              std::u16string_view service, std::u16string_view object);

/// What an error exit gives the report as object text.
enum class ReportedObject : bool { Description, Source };

/// Runs an operation under an error exit: whatever it raises goes to the error report.
template <typename Operation>
decltype(auto) reporting(std::u16string_view className, std::u16string_view service, ReportedObject object,
                         Operation&& operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        const automation::Error current = automation::currentError();
        reportError(current, className, service,
                    object == ReportedObject::Source ? current.source() : current.description());
    }
}

/// Runs an operation whose errors do not matter. True when it raised none.
template <typename Operation> bool ignoringErrors(Operation&& operation) noexcept {
    try {
        std::forward<Operation>(operation)();
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace platform
