#include "simulator/system/EmbeddedKeyboard.h"

#include "automation/Text.h"

namespace simulator {

void EmbeddedKeyboard::send(std::u16string_view keys) {
    constexpr std::u16string_view escape = u"{esc}";
    sent_ += keys;
    const std::u16string typed = automation::lowerCase(keys);
    for (std::size_t at = typed.find(escape); at != std::u16string::npos; at = typed.find(escape, at + 1)) {
        const platform::WindowHandle active = windows_.foreground();
        if ((windows_.extendedStyle(active) & platform::WindowSystem::dialogModalFrame) != 0) {
            windows_.send(active, platform::WindowSystem::closeMessage);
        }
    }
}

} // namespace simulator
