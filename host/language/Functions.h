#pragma once

#include "automation/MemberTable.h"

namespace host::language {

/// The functions of the macro language's own library, as an object that publishes them. `MsgBox` and `Debug.Print` show
/// nothing: a message is closed with OK at once.
class Functions final : public automation::Published {
public:
    [[nodiscard]] std::u16string className() const override { return u"VBA"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    using Text = std::u16string;
    using Value = automation::Value;

    [[nodiscard]] Text chr(std::int32_t code) const;
    [[nodiscard]] std::int32_t asc(const Text& text) const;
    [[nodiscard]] std::int32_t len(const Text& text) const { return static_cast<std::int32_t>(text.size()); }
    [[nodiscard]] Text left(const Text& text, std::int32_t length) const { return mid(text, 1, length); }
    [[nodiscard]] Text right(const Text& text, std::int32_t length) const;
    [[nodiscard]] Text mid(const Text& text, std::int32_t start, std::optional<std::int32_t> length) const;
    [[nodiscard]] Text trim(const Text& text) const;
    [[nodiscard]] Text replace(const Text& text, const Text& what, const Text& by) const;
    /// The start, where one is given, stands first; a way to compare is not looked at.
    [[nodiscard]] std::int32_t inStr(const Value& first, const Value& second, const std::optional<Value>& third) const;
    [[nodiscard]] double floor(double number) const;
    [[nodiscard]] double abs(double number) const;
    template <typename T> [[nodiscard]] T as(const Value& value) const { return value.to<T>(); }
    [[nodiscard]] std::int32_t message(const Value& prompt, const std::optional<Value>& buttons,
                                       const std::optional<Value>& title) const;
    [[nodiscard]] automation::ObjectPtr debug() const;
};

/// True for the name of one.
[[nodiscard]] bool isFunction(std::u16string_view name);

} // namespace host::language
