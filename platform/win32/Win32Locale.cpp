#include "platform/win32/Win32Locale.h"

#include <windows.h>

namespace platform {

std::int32_t Win32Locale::getInfo(std::int32_t locale, std::int32_t item, std::span<char> buffer) {
    return GetLocaleInfoA(static_cast<LCID>(locale), static_cast<LCTYPE>(item), buffer.data(),
                          static_cast<int>(buffer.size()));
}

} // namespace platform
