#include "host/language/Functions.h"

#include "automation/Text.h"

#include <cmath>

namespace host::language {

namespace {

using automation::RunTimeError;
using automation::Value;

constexpr std::int32_t okPressed = 1;

/// Raises InvalidProcedureCall (5) for a number below.
std::size_t atLeast(std::int32_t least, std::int32_t number) {
    if (number < least) {
        automation::raise(RunTimeError::InvalidProcedureCall);
    }
    return static_cast<std::size_t>(number);
}

class Debug final : public automation::Published {
public:
    [[nodiscard]] std::u16string className() const override { return u"Debug"; }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static const automation::MemberTable table{automation::method<&Debug::print>(u"Print")};
        return table;
    }

private:
    void print(const std::optional<Value>& /*value*/) const {}
};

} // namespace

const automation::MemberTable& Functions::members() const {
    using automation::method;
    using This = Functions;
    static const automation::MemberTable table{
        method<&This::chr>(u"Chr", u"CharCode"),
        method<&This::chr>(u"ChrW", u"CharCode"),
        method<&This::asc>(u"Asc", u"String"),
        method<&This::len>(u"Len", u"Expression"),
        method<&This::left>(u"Left", u"String Length"),
        method<&This::right>(u"Right", u"String Length"),
        method<&This::mid>(u"Mid", u"String Start Length"),
        method<&This::trim>(u"Trim", u"String"),
        method<&This::replace>(u"Replace", u"Expression Find Replace"),
        method<&This::inStr>(u"InStr"),
        method<&This::floor>(u"Int", u"Number"),
        method<&This::abs>(u"Abs", u"Number"),
        method<&This::as<std::u16string>>(u"CStr", u"Expression"),
        method<&This::as<std::int32_t>>(u"CInt", u"Expression"),
        method<&This::as<std::int32_t>>(u"CLng", u"Expression"),
        method<&This::as<float>>(u"CSng", u"Expression"),
        method<&This::as<double>>(u"CDbl", u"Expression"),
        method<&This::message>(u"MsgBox", u"Prompt Buttons Title"),
        automation::property<&This::debug>(u"Debug"),
    };
    return table;
}

std::u16string Functions::chr(std::int32_t code) const {
    return Text(1, static_cast<char16_t>(atLeast(0, code)));
}

std::int32_t Functions::asc(const Text& text) const {
    atLeast(1, len(text));
    return text.front();
}

std::u16string Functions::right(const Text& text, std::int32_t length) const {
    return text.substr(text.size() - std::min(text.size(), atLeast(0, length)));
}

std::u16string Functions::mid(const Text& text, std::int32_t start, std::optional<std::int32_t> length) const {
    const std::size_t first = std::min(atLeast(1, start) - 1, text.size());
    return text.substr(first, length ? atLeast(0, *length) : Text::npos);
}

std::u16string Functions::trim(const Text& text) const {
    const std::size_t first = std::min(text.find_first_not_of(u' '), text.size());
    return text.substr(first, text.find_last_not_of(u' ') + 1 - first);
}

std::u16string Functions::replace(const Text& text, const Text& what, const Text& by) const {
    Text result = text;
    for (std::size_t at = what.empty() ? Text::npos : result.find(what); at != Text::npos;
         at = result.find(what, at + by.size())) {
        result.replace(at, what.size(), by);
    }
    return result;
}

std::int32_t Functions::inStr(const Value& first, const Value& second, const std::optional<Value>& third) const {
    const Text text = (third ? second : first).to<Text>();
    const std::size_t start = third ? atLeast(1, first.to<std::int32_t>()) - 1 : 0;
    return static_cast<std::int32_t>(text.find((third ? *third : second).to<Text>(), start) + 1);
}

double Functions::floor(double number) const {
    return std::floor(number);
}

double Functions::abs(double number) const {
    return std::abs(number);
}

std::int32_t Functions::message(const Value& prompt, const std::optional<Value>& /*buttons*/,
                                const std::optional<Value>& /*title*/) const {
    static_cast<void>(prompt.to<Text>());
    return okPressed;
}

automation::ObjectPtr Functions::debug() const {
    return std::make_shared<Debug>();
}

bool isFunction(std::u16string_view name) {
    return Functions().members().find(name) != nullptr;
}

} // namespace host::language
