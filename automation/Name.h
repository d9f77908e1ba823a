#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

namespace automation {

/// A member's name as a late-bound call states it. Names are compared without regard to the case of A to Z.
/// An empty text names the default member.
class Name {
public:
    /// `scope` is the class that publishes the member, where the caller knows it: a bridge to another process looks a
    /// scoped name up once and remembers it. `parameters` names the last arguments of the call. All texts must outlive
    /// the name (literals do).
    constexpr Name(std::u16string_view text, std::u16string_view scope = {},
                   std::span<const std::u16string_view> parameters = {}) noexcept
        : text_(text), scope_(scope), parameters_(parameters), hash_(hashOf(text)) {}
    constexpr Name(const char16_t* text) noexcept : Name(std::u16string_view(text)) {}

    [[nodiscard]] constexpr std::u16string_view text() const noexcept { return text_; }
    [[nodiscard]] constexpr std::u16string_view scope() const noexcept { return scope_; }
    [[nodiscard]] constexpr std::span<const std::u16string_view> parameters() const noexcept { return parameters_; }
    [[nodiscard]] constexpr std::uint32_t hash() const noexcept { return hash_; }
    [[nodiscard]] constexpr bool isDefault() const noexcept { return text_.empty(); }

    [[nodiscard]] constexpr bool matches(const Name& other) const noexcept {
        return hash_ == other.hash_ && text_.size() == other.text_.size() &&
               (std::equal(text_.begin(), text_.end(), other.text_.begin()) ||
                std::equal(text_.begin(), text_.end(), other.text_.begin(),
                           [](char16_t left, char16_t right) { return fold(left) == fold(right); }));
    }

private:
    static constexpr char16_t fold(char16_t c) noexcept {
        return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
    }
    static constexpr std::uint32_t hashOf(std::u16string_view text) noexcept {
        std::uint32_t hash = 2166136261U;
        for (const char16_t c : text) {
            hash = (hash ^ fold(c)) * 16777619U;
        }
        return hash;
    }

    std::u16string_view text_;
    std::u16string_view scope_;
    std::span<const std::u16string_view> parameters_;
    std::uint32_t hash_;
};

/// The member that an object answers with when none is named.
inline constexpr Name defaultMember{u""};

} // namespace automation
