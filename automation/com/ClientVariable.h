#pragma once

#include "automation/Unmoved.h"
#include "automation/Value.h"

#include "automation/com/Ole.h"

#include <optional>

namespace automation::com {

/// A variable of a client's, as a value for the length of one call. It holds no object beside that value: once the call
/// lets go of it, the client's own reference is the last one.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): nothing is derived from it
class ClientVariable final : public Original, Unmoved {
public:
    /// The by-reference VARIANT that refers to the variable, which must outlive this, and what stands there.
    ClientVariable(const VARIANT& reference, Value value);

    /// The argument for the call.
    [[nodiscard]] Value argument() noexcept { return Value::reference(value_, this); }

    /// Gives the client what the call has changed and what has not reached it yet. Raises as `assign`; the client then
    /// keeps what it has.
    void writeBack();

    void follow() noexcept override;

private:
    [[nodiscard]] bool isWritten() const;
    void remember();

    VARIANT reference_;
    Value value_;
    std::optional<Value> written_;        ///< what the client has; none where that is an object
    std::weak_ptr<Object> writtenObject_; ///< known again by it, and not held
};

} // namespace automation::com
