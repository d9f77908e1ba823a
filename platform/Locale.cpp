#include "platform/Locale.h"

#include <algorithm>

namespace platform {

std::u16string queryLocale(Locale& settings, std::int32_t locale, std::int32_t item) {
    const std::int32_t size = settings.getInfo(locale, item, {});
    if (size == 0) {
        return {};
    }
    std::string buffer(static_cast<std::size_t>(size), ' ');
    const std::int32_t written = settings.getInfo(locale, item, buffer);
    // Without the NUL at its end; nothing where it could not be read.
    buffer.resize(static_cast<std::size_t>(std::max(written, 1) - 1));
    std::u16string text(buffer.size(), u'\0');
    std::transform(buffer.begin(), buffer.end(), text.begin(),
                   [](char byte) { return static_cast<char16_t>(static_cast<unsigned char>(byte)); });
    return text;
}

} // namespace platform
