#pragma once

#include "automation/Text.h"
#include "automation/Value.h"

#include "automation/com/Ole.h"

#include <ostream>
#include <string>
#include <vector>

namespace tests {

/// What a client reads of an error.
struct ErrorSaid {
    std::uint32_t number = 0;
    std::u16string source;
    std::u16string description;
    DWORD helpContext = 0;

    friend bool operator==(const ErrorSaid&, const ErrorSaid&) = default;
    friend std::ostream& operator<<(std::ostream& out, const ErrorSaid& error) {
        return out << automation::toUtf8(automation::hexadecimal(static_cast<std::int32_t>(error.number)) + u": " +
                                         error.description + u" [" + error.source + u"]");
    }
};

/// The error of a call by vtable that gave this status, with what the thread's error object says of it.
[[nodiscard]] ErrorSaid errorOfInterface(HRESULT status);

/// The error of a late-bound call, as its EXCEPINFO says it; the thread's error object must say the same. Arguments are
/// given in their order, and are the caller's to clear.
[[nodiscard]] ErrorSaid errorOfInvoke(IDispatch& object, std::u16string_view member, std::vector<VARIANT> arguments);
[[nodiscard]] ErrorSaid errorOfCall(IDispatch& object, std::u16string_view member,
                                    const std::vector<automation::Value>& arguments);

} // namespace tests
