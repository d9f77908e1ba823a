#include "simulator/picture/Markup.h"

#include "automation/Text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace simulator::picture {

namespace {

/// True for the UTF-16 units that XML 1.0 takes.
bool isAllowed(char16_t unit) noexcept {
    return unit >= u' ' ? unit != 0xFFFE && unit != 0xFFFF : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

std::u16string_view entityOf(char16_t unit) noexcept {
    switch (unit) {
    case u'&': return u"&amp;";
    case u'<': return u"&lt;";
    case u'>': return u"&gt;";
    case u'"': return u"&quot;";
    case u'\n': return u"&#10;";
    case u'\r': return u"&#13;";
    case u'\t': return u"&#9;";
    default: return {};
    }
}

} // namespace

std::string escaped(std::string_view utf8) {
    std::u16string text;
    for (const char16_t unit : automation::fromUtf8(utf8)) {
        if (const std::u16string_view entity = entityOf(unit); !entity.empty()) {
            text += entity;
        } else if (isAllowed(unit)) {
            text += unit;
        }
    }
    return automation::toUtf8(text);
}

std::string number(float value) {
    const double rounded = std::round(static_cast<double>(value) * 100) / 100;
    if (!std::isfinite(rounded) || rounded == 0) {
        return "0";
    }
    std::array<char, 64> digits{};
    const auto [end, status] =
        std::to_chars(digits.data(), digits.data() + digits.size(), rounded, std::chars_format::fixed, 2);
    std::string text(digits.data(), end);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text;
}

Markup::Element::~Element() {
    markup_.out_ += "</";
    markup_.out_ += name_;
    markup_.out_ += '>';
}

void Markup::begin(std::string_view name, const Attributes& attributes) {
    out_ += '<';
    out_ += name;
    for (const auto& [attribute, value] : attributes) {
        out_ += ' ';
        out_ += attribute;
        out_ += "=\"" + escaped(value) + '"';
    }
}

Markup::Element Markup::element(std::string_view name, const Attributes& attributes) {
    begin(name, attributes);
    out_ += '>';
    return {*this, name};
}

void Markup::leaf(std::string_view name, const Attributes& attributes) {
    begin(name, attributes);
    out_ += "/>";
}

void Markup::leaf(std::string_view name, const Attributes& attributes, std::string_view text) {
    const Element whole = element(name, attributes);
    out_ += escaped(text);
}

void Markup::text(std::string_view utf8) {
    out_ += escaped(utf8);
}

} // namespace simulator::picture
