#include "automation/Text.h"

#include <algorithm>
#include <array>

namespace automation {

namespace {

constexpr char32_t replacement = 0xFFFD;

void appendUtf8(std::string& out, char32_t point) {
    const auto tail = [&](int shift) { out += static_cast<char>(0x80U | ((point >> shift) & 0x3FU)); };
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += static_cast<char>(0xC0U | (point >> 6U));
        tail(0);
    } else if (point < 0x10000) {
        out += static_cast<char>(0xE0U | (point >> 12U));
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0U | (point >> 18U));
        tail(12);
        tail(6);
        tail(0);
    }
}

void appendUtf16(std::u16string& out, char32_t point) {
    if (point < 0x10000) {
        out += static_cast<char16_t>(point);
    } else {
        point -= 0x10000;
        out += static_cast<char16_t>(0xD800U + (point >> 10U));
        out += static_cast<char16_t>(0xDC00U + (point & 0x3FFU));
    }
}

/// The code point that starts at `position`, which is moved past it.
char32_t nextUtf8(std::string_view text, std::size_t& position) {
    const auto lead = static_cast<unsigned char>(text[position++]);
    if (lead < 0x80) {
        return lead;
    }
    const std::size_t tails = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || position + tails > text.size()) {
        return replacement;
    }
    char32_t point = lead & (0x3FU >> tails);
    for (std::size_t i = 0; i < tails; ++i) {
        const auto next = static_cast<unsigned char>(text[position + i]);
        if ((next & 0xC0U) != 0x80) {
            return replacement;
        }
        point = (point << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 4> smallest{0, 0x80, 0x800, 0x10000};
    if (point < smallest.at(tails) || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) {
        return replacement;
    }
    position += tails;
    return point;
}

} // namespace

std::string toUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        const bool high = unit >= 0xD800 && unit < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            appendUtf8(out, 0x10000U + ((unit - 0xD800U) << 10U) + (text[++i] - 0xDC00U));
        } else {
            appendUtf8(out, unit >= 0xD800 && unit < 0xE000 ? replacement : unit);
        }
    }
    return out;
}

std::u16string fromUtf8(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        appendUtf16(out, nextUtf8(text, position));
    }
    return out;
}

char16_t lowerCase(char16_t letter) noexcept {
    const auto within = [letter](char16_t first, char16_t last) { return letter >= first && letter <= last; };
    const auto shifted = [letter](int by) { return static_cast<char16_t>(letter + by); };
    if (within(u'A', u'Z') || (within(0x00C0, 0x00DE) && letter != 0x00D7)) {
        return shifted(32);
    }
    if (letter == 0x0178) {
        return 0x00FF;
    }
    const bool evenCapital = within(0x0100, 0x012F) || within(0x0132, 0x0137) || within(0x014A, 0x0177) ||
                             within(0x0218, 0x021B) || within(0x0460, 0x0481) || within(0x1E00, 0x1E95);
    const bool oddCapital = within(0x0139, 0x0148) || within(0x0179, 0x017E);
    if ((evenCapital && letter % 2 == 0) || (oddCapital && letter % 2 == 1)) {
        return shifted(1);
    }
    if ((within(0x0391, 0x03AB) && letter != 0x03A2) || within(0x0410, 0x042F)) {
        return shifted(32);
    }
    return within(0x0400, 0x040F) ? shifted(80) : letter;
}

std::u16string lowerCase(std::u16string_view text) {
    std::u16string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char16_t c) { return lowerCase(c); });
    return out;
}

bool equalIgnoringCase(std::u16string_view left, std::u16string_view right) noexcept {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char16_t a, char16_t b) { return lowerCase(a) == lowerCase(b); });
}

std::u16string decimal(long long number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

std::u16string hexadecimal(std::int32_t number) {
    std::u16string digits(8, u'0');
    auto rest = static_cast<std::uint32_t>(number);
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, rest >>= 4U) {
        *digit = std::u16string_view(u"0123456789ABCDEF")[rest & 0xFU];
    }
    return digits;
}

} // namespace automation
