#pragma once

#include "platform/Locale.h"

#include <map>
#include <string_view>

namespace simulator {

/// Regional settings in memory, read as `GetLocaleInfoA` reads them. Every locale is the user's.
class EmbeddedLocale final : public platform::Locale {
public:
    /// An empty text makes the item impossible to read.
    void setItem(std::int32_t item, std::string_view text) { items_[item] = text; }

    std::int32_t getInfo(std::int32_t locale, std::int32_t item, std::span<char> buffer) override;

private:
    std::map<std::int32_t, std::string> items_{{measurementSystem, "0"}};
};

} // namespace simulator
