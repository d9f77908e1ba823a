#pragma once

#include "automation/MemberTable.h"
#include "simulator/process/Session.h"

namespace simulator {

/// An object of the object model: every call passes through the session first, which refuses it when PowerPoint is busy
/// or has ended.
class PowerPointObject : public automation::Published {
public:
    explicit PowerPointObject(SessionPtr session) noexcept : session_(std::move(session)) {}

    automation::Value invoke(const automation::Name& name, automation::Access access,
                             std::span<automation::Value> arguments) final {
        session_->admit();
        return Published::invoke(name, access, arguments);
    }

    /// The C++ classes bear the names of PowerPoint's: ShapeObject is its Shape.
    [[nodiscard]] std::u16string className() const final;

    [[nodiscard]] const SessionPtr& session() const noexcept { return session_; }

private:
    SessionPtr session_;
};

/// PowerPoint's own errors; their source is "Microsoft PowerPoint".
namespace errors {
/// What the object stood for has been deleted or closed.
[[noreturn]] void gone();
/// An index outside 1 to `count`; `member` is the member that took it ("Slides.Item").
[[noreturn]] void outOfRange(std::u16string_view member, std::int32_t index, std::size_t count);
/// A request that makes no sense as things stand.
[[noreturn]] void invalidRequest(std::u16string_view text);
/// The same, in PowerPoint's words: the member that was asked ("Shape.Select") and why it refuses.
[[noreturn]] void invalidRequest(std::u16string_view member, std::u16string_view reason);
/// A value that a member does not take.
[[noreturn]] void invalidValue(std::u16string_view member);

/// Refuses a value outside `first` to `last`, for a member.
template <typename T> void demandWithin(T value, T first, T last, std::u16string_view member) {
    if (!(value >= first && value <= last)) {
        invalidValue(member);
    }
}
} // namespace errors

/// What a weak reference stands for; raises `errors::gone` where it is gone.
template <typename T> [[nodiscard]] std::shared_ptr<T> alive(const std::weak_ptr<T>& reference) {
    std::shared_ptr<T> object = reference.lock();
    if (!object) {
        errors::gone();
    }
    return object;
}

} // namespace simulator
