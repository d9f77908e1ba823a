#include "host/language/Words.h"

#include "automation/Text.h"

#include <algorithm>

namespace host {

namespace {

/// What stands for a control character; any other stands for itself.
char16_t shown(char16_t unit) noexcept {
    constexpr char16_t pictures = u'\u2400'; ///< one for each control character, in their order
    constexpr char16_t pictureOfDelete = u'\u2421';
    constexpr char16_t unknown = u'\uFFFD';
    constexpr char16_t deletion = 0x7F;
    constexpr char16_t lastControl = 0x9F;
    if (unit < u' ') {
        return static_cast<char16_t>(pictures + unit);
    }
    return unit == deletion ? pictureOfDelete : unit > deletion && unit <= lastControl ? unknown : unit;
}

} // namespace

std::string counted(std::size_t number, const std::string& what) {
    return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

std::string inQuotes(std::u16string_view text) {
    return "\"" + automation::toUtf8(text) + "\"";
}

std::string inQuotes(const std::vector<std::u16string>& texts) {
    std::string all;
    for (const std::u16string& text : texts) {
        all += (all.empty() ? "" : ", ") + inQuotes(text);
    }
    return all;
}

std::string onOneLine(std::u16string_view text) {
    std::u16string line(text);
    std::transform(line.begin(), line.end(), line.begin(), shown);
    return automation::toUtf8(line);
}

std::u16string_view beginningOf(std::u16string_view text, std::size_t most) noexcept {
    const auto isFirstHalf = [](char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; };
    if (most < text.size() && most != 0 && isFirstHalf(text[most - 1])) {
        --most;
    }
    return text.substr(0, most);
}

std::string trimmed(const std::string& text) {
    constexpr const char* blanks = " \t\r";
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::u16string indented(std::u16string_view text) {
    std::u16string result;
    for (const char16_t c : text) {
        result += c;
        result += c == u'\n' ? u"  " : u"";
    }
    return result;
}

void replaceAll(std::string& text, std::string_view what, std::string_view by) {
    for (std::size_t place = text.find(what); place != std::string::npos; place = text.find(what, place + by.size())) {
        text.replace(place, what.size(), by);
    }
}

} // namespace host
