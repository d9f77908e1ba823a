#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

/// PowerPoint's own errors; their source is "Microsoft PowerPoint".
namespace simulator::errors {

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

} // namespace simulator::errors

namespace simulator {

/// What a weak reference stands for; raises `errors::gone` where it is gone.
template <typename T> [[nodiscard]] std::shared_ptr<T> alive(const std::weak_ptr<T>& reference) {
    std::shared_ptr<T> object = reference.lock();
    if (!object) {
        errors::gone();
    }
    return object;
}

} // namespace simulator
