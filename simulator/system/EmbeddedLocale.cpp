#include "simulator/system/EmbeddedLocale.h"

#include <algorithm>

namespace simulator {

std::int32_t EmbeddedLocale::getInfo(std::int32_t /*locale*/, std::int32_t item, std::span<char> buffer) {
    const auto found = items_.find(item);
    if (found == items_.end() || found->second.empty()) {
        return 0;
    }
    const std::string& text = found->second;
    const std::size_t needed = text.size() + 1;
    if (!buffer.empty()) {
        if (buffer.size() < needed) {
            return 0;
        }
        std::copy_n(text.c_str(), needed, buffer.begin());
    }
    return static_cast<std::int32_t>(needed);
}

} // namespace simulator
