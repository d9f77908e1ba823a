#include "host/language/Encoding.h"

#include "automation/Text.h"
#include "host/language/Position.h"

#include <algorithm>

namespace host::language {

namespace {

/// The value of a byte; a character may be signed.
unsigned valueOf(char byte) {
    return static_cast<unsigned char>(byte);
}

Position endOf(std::u16string_view text) {
    const std::size_t start = text.rfind(u'\n') + 1; // 0 where there is none
    return {static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\n')) + 1, text.size() - start + 1};
}

std::u16string utf16(std::string_view bytes, std::size_t low) {
    std::u16string text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text += static_cast<char16_t>(valueOf(bytes[i + low]) | valueOf(bytes[i + 1 - low]) << 8U);
    }
    if (bytes.size() % 2 != 0) {
        throw SyntaxError({endOf(text), "expected text in UTF-16, found half of a character: the file is cut short"});
    }
    return text;
}

std::u16string utf8(std::string_view bytes) {
    std::u16string text = automation::fromUtf8(bytes);
    const std::string wellFormed = automation::toUtf8(text);
    const auto* const wrong = std::mismatch(bytes.begin(), bytes.end(), wellFormed.begin(), wellFormed.end()).first;
    const auto* const stop = std::min(wrong, std::find(bytes.begin(), bytes.end(), '\0'));
    if (stop != bytes.end()) {
        const std::string number =
            automation::toUtf8(automation::hexadecimal(static_cast<int>(valueOf(*stop)))).substr(6);
        throw SyntaxError({endOf(automation::fromUtf8({bytes.begin(), stop})),
                           "expected text in UTF-8, found the byte " + number +
                               ": open the file in its editor and save it with the encoding UTF-8"});
    }
    return text;
}

} // namespace

std::u16string textOf(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) {
        return utf16(bytes.substr(2), 0);
    }
    if (bytes.starts_with("\xFE\xFF")) {
        return utf16(bytes.substr(2), 1);
    }
    return utf8(bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : bytes);
}

} // namespace host::language
