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
    constexpr auto smallest = std::to_array<char32_t>({0, 0x80, 0x800, 0x10000});
    if (point < smallest.at(tails) || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) {
        return replacement;
    }
    position += tails;
    return point;
}

/// Capitals from the first to the last of a row, each or every second, and how far the small letters stand from them.
/// Those of ASCII are left to lowerCase.
struct Capitals {
    char16_t first;
    char16_t last;
    int step;
    int shift;
};
constexpr auto inRows = std::to_array<Capitals>({
    {u'À', u'Ö', 1, 32}, {u'Ø', u'Þ', 1, 32}, {u'Ā', u'Į', 2, 1},    {u'Ĳ', u'Ķ', 2, 1},  {u'Ĺ', u'Ň', 2, 1},
    {u'Ŋ', u'Ŷ', 2, 1},  {u'Ź', u'Ž', 2, 1},  {u'Ơ', u'Ƥ', 2, 1},    {u'ǋ', u'Ǜ', 2, 1},  {u'Ǟ', u'Ǯ', 2, 1},
    {u'Ǹ', u'Ȟ', 2, 1},  {u'Ȣ', u'Ȳ', 2, 1},  {u'Ɇ', u'Ɏ', 2, 1},    {u'Έ', u'Ί', 1, 37}, {u'Α', u'Ρ', 1, 32},
    {u'Σ', u'Ϋ', 1, 32}, {u'Ϙ', u'Ϯ', 2, 1},  {u'Ͻ', u'Ͽ', 1, -130}, {u'Ѐ', u'Џ', 1, 80}, {u'А', u'Я', 1, 32},
    {u'Ѡ', u'Ҁ', 2, 1},  {u'Ҋ', u'Ҿ', 2, 1},  {u'Ӂ', u'Ӎ', 2, 1},    {u'Ӑ', u'Ԯ', 2, 1}, {u'Ա', u'Ֆ', 1, 48},
    {u'Ḁ', u'Ẕ', 2, 1},  {u'Ạ', u'Ỿ', 2, 1},  {u'Ἀ', u'Ἇ', 1, -8},   {u'Ἐ', u'Ἕ', 1, -8}, {u'Ἠ', u'Ἧ', 1, -8},
    {u'Ἰ', u'Ἷ', 1, -8}, {u'Ὀ', u'Ὅ', 1, -8}, {u'Ὑ', u'Ὗ', 2, -8},   {u'Ὠ', u'Ὧ', 1, -8}, {u'ᾈ', u'ᾏ', 1, -8},
    {u'ᾘ', u'ᾟ', 1, -8}, {u'ᾨ', u'ᾯ', 1, -8}, {u'Ὲ', u'Ή', 1, -86},
});

/// All other capitals, each before its small letter.
constexpr std::u16string_view inPairs =
    u"İiŸÿƁɓƂƃƄƅƆɔƇƈƉɖƊɗƋƌƎǝƏəƐɛƑƒƓɠƔɣƖɩƗɨƘƙƜɯƝɲƟɵƦʀƧƨƩʃ"
    u"ƬƭƮʈƯưƱʊƲʋƳƴƵƶƷʒƸƹƼƽǄǆǅǆǇǉǈǉǊǌǱǳǲǳǴǵǶƕǷƿȠƞȺⱥȻȼȽƚ"
    u"ȾⱦɁɂɃƀɄʉɅʌͰͱͲͳͶͷͿϳΆάΌόΎύΏώϏϗϴθϷϸϹϲϺϻӀӏẞßᾸᾰᾹᾱᾺὰ"
    u"ΆάᾼᾳῌῃῘῐῙῑῚὶΊίῨῠῩῡῪὺΎύῬῥῸὸΌόῺὼΏώ"
    u"ῼῳ";

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
    if (letter < 0x80) {
        return static_cast<char16_t>(letter >= u'A' && letter <= u'Z' ? letter + 32 : letter);
    }
    for (const Capitals& row : inRows) {
        if (letter >= row.first && letter <= row.last && (letter - row.first) % row.step == 0) {
            return static_cast<char16_t>(letter + row.shift);
        }
    }
    for (std::size_t place = 0; place < inPairs.size(); place += 2) {
        if (inPairs[place] == letter) {
            return inPairs[place + 1];
        }
    }
    return letter;
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
