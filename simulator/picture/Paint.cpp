#include "simulator/picture/Paint.h"

#include <array>

namespace simulator::picture {

namespace {

/// A short name for a text: another for another text, the same wherever it is made.
std::string nameFor(std::string_view text) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
    constexpr std::string_view digits = "0123456789abcdefghijklmnopqrstuv";
    std::string name = "p";
    for (int i = 0; i < 10; ++i, hash >>= 5U) {
        name += digits[hash & 31U];
    }
    return name;
}

/// Where a gradient of a style (from 1) runs.
constexpr std::array<std::string_view, 6> directions{
    R"( x1="0" y1="0" x2="0" y2="1")", R"( x1="0" y1="0" x2="1" y2="0")", R"( x1="0" y1="0" x2="1" y2="1")",
    R"( x1="1" y1="0" x2="0" y2="1")", R"( x1="0" y1="0" x2="1" y2="1")", R"( x1="0" y1="0" x2="0" y2="1")",
};
constexpr std::int32_t gradientFromCenter = 7;

std::string stop(std::string_view offset, const std::string& color) {
    return "<stop offset=\"" + std::string(offset) + "\" stop-color=\"" + color + "\"/>";
}

/// Variants run from one colour to the other, back, and to and fro.
std::string stopsOf(std::int32_t variant, std::string first, std::string second) {
    if (variant % 2 == 0) {
        std::swap(first, second);
    }
    return variant > 2 ? stop("0", first) + stop(".5", second) + stop("1", first)
                       : stop("0", first) + stop("1", second);
}

/// What stands for a pattern on a tile of eight by eight: the families of patterns can be told apart, not each of them.
std::string_view marksOf(const Fill& fill) {
    constexpr std::int32_t lastPercentage = 12;
    constexpr std::array<std::string_view, 7> lines{"M0 2H8M0 6H8", "M2 0V8M6 0V8",     "M0 0L8 8",    "M0 8L8 0",
                                                    "M0 2H4V6H8",   "M0 0L8 8M0 8L8 0", "M0 4H8M4 0V8"};
    if (fill.type == msoFillTextured) {
        return "M1 2h2M5 1h1M4 4h2M1 6h1M6 7h2";
    }
    if (fill.pattern <= lastPercentage) {
        return fill.pattern <= 4 ? "M1 1h1M5 5h1" : fill.pattern <= 8 ? "M0 1h2M4 3h2M0 5h2M4 7h2" : "M0 2h6M2 6h6";
    }
    return lines.at(static_cast<std::size_t>(fill.pattern - lastPercentage - 1) % lines.size());
}

std::string dashesOf(std::int32_t style, float weight) {
    constexpr std::array<std::string_view, 9> dashes{"",    "",       "1 1", "1 2", "4 3", "4 3 1 3", "4 3 1 3 1 3",
                                                     "8 3", "8 3 1 3"};
    if (style < 2 || style >= static_cast<std::int32_t>(dashes.size())) {
        return {};
    }
    std::string scaled;
    for (const char c : dashes.at(static_cast<std::size_t>(style))) {
        scaled += c == ' ' ? " " : number(static_cast<float>(c - '0') * std::max(weight, 1.0F));
    }
    return scaled;
}

} // namespace

std::string hex(std::int32_t rgb) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) {
        text += digits[(static_cast<std::uint32_t>(rgb) >> shift) & 15U];
    }
    return text;
}

std::int32_t darkened(std::int32_t rgb, float share) noexcept {
    std::int32_t result = 0;
    for (const int shift : {0, 8, 16}) {
        const auto part = static_cast<float>((rgb >> shift) & 0xFF);
        result |= static_cast<std::int32_t>(part * share) << shift;
    }
    return result;
}

Markup::Attributes Paint::fill(const Fill& fill) {
    if (!fill.visible) {
        return {{"fill", "none"}};
    }
    Markup::Attributes attributes{{"fill", paintOf(fill)}};
    if (fill.transparency > 0) {
        attributes.emplace_back("fill-opacity", number(1 - fill.transparency));
    }
    return attributes;
}

Markup::Attributes Paint::line(const Line& line) const {
    if (!line.visible) {
        return {};
    }
    Markup::Attributes attributes{{"stroke", color(line.color)}, {"stroke-width", number(line.weight)}};
    if (std::string dashes = dashesOf(line.dashStyle, line.weight); !dashes.empty()) {
        attributes.emplace_back("stroke-dasharray", std::move(dashes));
    }
    return attributes;
}

std::string Paint::paintOf(const Fill& fill) {
    std::string fore = color(fill.fore);
    const std::string back = color(fill.back);
    switch (fill.type) {
    case msoFillGradient:
        return fill.gradientStyle == gradientFromCenter
                   ? defined("radialGradient", {}, stopsOf(fill.gradientVariant, back, fore))
                   : defined("linearGradient",
                             std::string(directions.at(static_cast<std::size_t>(fill.gradientStyle + 5) % 6)),
                             stopsOf(fill.gradientVariant, fore, back));
    case msoFillPatterned:
    case msoFillTextured:
        return defined("pattern", R"( width="8" height="8" patternUnits="userSpaceOnUse")",
                       R"(<path d="M0 0H8V8H0Z" fill=")" + back + R"("/><path d=")" + std::string(marksOf(fill)) +
                           R"(" fill="none" stroke=")" + fore + R"(" stroke-width="1.6"/>)");
    case msoFillBackground: return color(Color::of(ppBackground));
    default: return fore;
    }
}

std::string Paint::defined(const std::string& name, const std::string& attributes, const std::string& content) {
    const std::string id = nameFor(name + attributes + content);
    if (defined_.insert(id).second) {
        out_.raw("<defs><" + name + " id=\"" + id + "\"" + attributes + ">" + content + "</" + name + "></defs>");
    }
    return "url(#" + id + ")";
}

} // namespace simulator::picture
