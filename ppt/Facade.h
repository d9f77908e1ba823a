#pragma once

#include "automation/LateBound.h"
#include "ppt/Constants.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ppt {

/// A text that can be a template argument.
template <std::size_t Size> struct FixedText {
    std::array<char16_t, Size> characters{};

    // NOLINTNEXTLINE(*-avoid-c-arrays, *-array-to-pointer-decay): a literal is an array
    consteval FixedText(const char16_t (&literal)[Size]) { std::copy_n(literal, Size, characters.begin()); }
    [[nodiscard]] constexpr std::u16string_view view() const noexcept { return {characters.data(), Size - 1}; }
};

/// One class of the object model, seen through a late-bound reference: one function a member, every call a fresh walk,
/// nothing kept. Whatever PowerPoint raises passes to the caller.
template <FixedText ClassName> class Facade : public automation::LateBound {
public:
    using LateBound::LateBound;
    /// The object that a member answered with.
    explicit Facade(automation::Value&& answer) : LateBound(std::move(answer).to<automation::ObjectPtr>()) {}

protected:
    template <FixedText Member> static constexpr automation::Name memberName{Member.view(), ClassName.view()};

    template <FixedText Member, typename... Arguments> automation::Value get(Arguments&&... arguments) const {
        return LateBound::get(memberName<Member>, std::forward<Arguments>(arguments)...);
    }
    template <FixedText Member, typename... Arguments> automation::Value call(Arguments&&... arguments) const {
        return LateBound::call(memberName<Member>, std::forward<Arguments>(arguments)...);
    }
    template <FixedText Member, typename NewValue> void put(NewValue&& value) const {
        LateBound::put(memberName<Member>, std::forward<NewValue>(value));
    }
};

/// A position in a collection, from 1, as the 16-bit or 32-bit integer that the caller states; or a name.
using Index = automation::Value;

/// "From the first to the last", as the text members take it when a start or a length is left out.
inline constexpr std::int32_t whole = -1;

} // namespace ppt
